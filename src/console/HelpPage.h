// The page that `--hilfe` prints.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace tarvelin {

/// Written for players: each option with the German word for its value, then the codes of the items
/// and examples.
class HelpPage : public CLI::Formatter {
  public:
    HelpPage();

    [[nodiscard]] std::string make_usage(const CLI::App* app, std::string name) const override;
    [[nodiscard]] std::string make_option_opts(const CLI::Option* option) const override;
    [[nodiscard]] std::string make_footer(const CLI::App* app) const override;
};

}  // namespace tarvelin
