// Runs a search from the options of the command line.
#include "console/SearchCommand.h"

#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "console/ExitCode.h"
#include "export/SearchReport.h"
#include "persistence/PlanFile.h"
#include "simulation/RunTexts.h"
#include "util/NumberText.h"
#include "util/Utf8.h"

namespace tarvelin {

namespace {

int Say(const std::string& text, int code) {
    std::cerr << "tarvelin-cli: " << text << '\n';
    return code;
}

bool ErrorStreamIsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return ::isatty(STDERR_FILENO) == 1;
#endif
}

using RowRanges = std::vector<std::pair<std::size_t, std::size_t>>;

/// Parses "3,7-9"; for other texts the error message.
std::variant<RowRanges, std::string> ParseRows(std::string_view text) {
    constexpr const char* kExpected = "--fest erwartet Zeilen wie 3,7-9";
    constexpr std::int64_t kHighest = 9999;
    RowRanges ranges;
    while (!text.empty()) {
        const auto end = std::min(text.find(','), text.size());
        const auto piece = text.substr(0, end);
        if (end + 1 == text.size()) {
            return kExpected;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
        const auto dash = piece.find('-');
        const auto first = ParseWholeNumber(piece.substr(0, dash), 1, kHighest);
        const auto last = dash == std::string_view::npos
                              ? first
                              : ParseWholeNumber(piece.substr(dash + 1), 1, kHighest);
        if (!first || !last) {
            return kExpected;
        }
        if (*first > *last) {
            return "--fest " + std::string(piece) + " läuft rückwärts: gemeint ist wohl " +
                   std::to_string(*last) + "-" + std::to_string(*first);
        }
        ranges.emplace_back(*first, *last);
    }
    return ranges;
}

/// The request, or the error message.
std::variant<SearchRequest, std::string> ParseRequest(const SearchCommand& command) {
    SearchRequest request{.goal = command.goal, .moveProduction = command.moveProduction};
    const auto ranges = ParseRows(command.pinned);
    if (const auto* const error = std::get_if<std::string>(&ranges)) {
        return *error;
    }
    request.pinnedRanges = std::get<RowRanges>(ranges);
    if (command.notBefore) {
        request.notBefore = ParseDateTime(*command.notBefore);
        if (!request.notBefore) {
            return "--ab erwartet einen Zeitpunkt wie \"18.11.2026 12:30:00\"";
        }
    }
    return request;
}

SearchResult SearchWithProgress(const PlanTask& task, const SearchCommand& command,
                                const std::atomic<bool>& stop) {
    SearchBudget budget{.seed = command.seed, .threads = command.threads};
    budget.tries = command.tries == 0 ? budget.tries : command.tries;
    budget.slackPercent = command.sittingsPercent.value_or(0);
    const bool show = ErrorStreamIsTerminal();
    SearchResult result = Search(task, budget, stop, [&](const SearchProgress& progress) {
        if (show) {
            std::cerr << '\r' << ProgressLine(progress) << "   " << std::flush;
        }
    });
    if (show) {
        std::cerr << '\n';
    }
    return result;
}

}  // namespace

int RunSearchCommand(const SearchCommand& command, const std::atomic<bool>& stop) {
    const auto request = ParseRequest(command);
    if (const auto* const error = std::get_if<std::string>(&request)) {
        return Say(*error, kWrongCall);
    }
    const PlanRun oldRun(PathFromUtf8(command.planFile));
    if (!oldRun.loaded) {
        const int code = Say(LoadErrorMessage().text, kPlanFailed);
        std::cerr << command.planFile << ": " << LoadObstacle(PathFromUtf8(command.planFile))
                  << '\n';
        return code;
    }
    if (oldRun.run.state.IsAtEndOfClock()) {
        std::cerr << command.planFile << ": " << BeyondClockText() << '\n';
    }
    const auto task = MakePlanTask(oldRun.plan, std::get<SearchRequest>(request));
    if (const auto* const refusal = std::get_if<SearchRefusal>(&task)) {
        return Say(refusal->text, refusal->wrongCall ? kWrongCall : kPlanFailed);
    }
    const auto& planTask = std::get<PlanTask>(task);
    const SearchResult result = SearchWithProgress(planTask, command, stop);
    if (!result.best) {
        return Say("Es wurde keine Liste gefunden, die endet", kPlanFailed);
    }
    const Plan after = WithOrders(oldRun.plan, result.best->orders, planTask.pause);
    const PlanRun newRun(
        command.outputFile ? PathToUtf8(PathFromUtf8(*command.outputFile).filename()) : oldRun.name,
        after);
    const SearchReport report{.before = oldRun,
                              .task = planTask,
                              .result = result,
                              .after = newRun,
                              .seed = command.seed};
    if (command.outputFile && !SaveBauliste(PathFromUtf8(*command.outputFile), after)) {
        return Say(SaveErrorMessage().text, kPlanFailed);
    }
    std::cout << (command.json ? SearchJson(report) + "\n" : SearchText(report));
    return kGood;
}

}  // namespace tarvelin
