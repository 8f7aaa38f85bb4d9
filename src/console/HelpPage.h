// The page that `--hilfe` prints.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace tarvelin {

/// For players: the options with German words for their values, the item codes, and examples.
class HelpPage : public CLI::Formatter {
  public:
    HelpPage();

    [[nodiscard]] std::string make_usage(const CLI::App* app, std::string name) const override;
    [[nodiscard]] std::string make_option_opts(const CLI::Option* option) const override;
    [[nodiscard]] std::string make_footer(const CLI::App* app) const override;
};

}  // namespace tarvelin
