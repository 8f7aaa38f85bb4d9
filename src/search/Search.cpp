// Chains of simulated annealing, run by several threads.
#include "search/Search.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <limits>
#include <mutex>
#include <span>
#include <thread>
#include <utility>

#include "search/IncrementalEvaluator.h"
#include "search/InitialSolution.h"
#include "search/Neighborhood.h"

namespace tarvelin {

namespace {

constexpr Long kNoLimit = std::numeric_limits<Long>::max();

/// What a chain minimizes.
enum class Objective : std::uint8_t {
    Duration,
    /// Duration, and a little of `Score::sleepFreeStart`.
    NightGap,
    /// Sittings above all, then duration.
    Sittings,
};

/// The heat is the scale, as a share of the objective value, of the worsening that a chain accepts.
/// These are its values at the first try; pairs of consecutive chains take them in turn.
std::span<const double> InitialHeats(const SearchTask& task, std::size_t freeCount) {
    constexpr std::size_t kSmall = 12;
    static constexpr std::array kWithEconomy{0.02};
    static constexpr std::array kFew{0.1};
    static constexpr std::array kMany{0.002, 0.01, 0.002, 0.03};
    if (task.kind == SearchTask::Kind::Goal) {
        return kWithEconomy;
    }
    if (freeCount <= kSmall) {
        return kFew;
    }
    return kMany;
}

/// The heat at the last try of a chain.
constexpr double kFinalHeat = 0.00001;

/// Factor on the heat of chains that start from the best list of earlier ones.
constexpr double kReheat = 0.1;

double ObjectiveValue(const Score& score, Objective objective) {
    constexpr double kPerSecondOfNight = 0.02;
    constexpr double kPerSitting = 1000;
    switch (objective) {
        case Objective::Duration:
            break;
        case Objective::NightGap:
            return score.duration + kPerSecondOfNight * score.sleepFreeStart.Seconds();
        case Objective::Sittings:
            return score.duration + kPerSitting * score.sittings;
    }
    return score.duration;
}

bool IsBetter(const Score& a, const Score& b, Objective objective) {
    if (objective == Objective::Sittings && a.sittings != b.sittings) {
        return a.sittings < b.sittings;
    }
    return a.duration != b.duration ? a.duration < b.duration : a.sittings < b.sittings;
}

/// Shared by all chains. The best duration is only for the progress, as it depends on the timing of
/// the threads.
class SharedProgress {
  public:
    explicit SharedProgress(const std::atomic<bool>& stop) : m_stop(&stop) {}

    [[nodiscard]] bool Stops() const { return m_stop->load(std::memory_order_relaxed); }
    void CountTries() { m_tries.fetch_add(1, std::memory_order_relaxed); }
    [[nodiscard]] std::uint64_t Tries() const { return m_tries.load(); }

    void Report(Long duration) {
        const std::scoped_lock lock(m_mutex);
        if (duration < m_best) {
            m_best = duration;
            m_bestAt = std::chrono::steady_clock::now();
        }
    }
    [[nodiscard]] std::pair<Long, std::chrono::steady_clock::time_point> Best() {
        const std::scoped_lock lock(m_mutex);
        return {m_best, m_bestAt};
    }

  private:
    const std::atomic<bool>* m_stop;
    std::atomic<std::uint64_t> m_tries{0};
    std::mutex m_mutex;
    Long m_best = kNoLimit;
    std::chrono::steady_clock::time_point m_bestAt = std::chrono::steady_clock::now();
};

struct ChainSpec {
    const SearchTask* task;
    const Solution* initial;
    Objective objective;
    double heat;
    std::uint64_t seed;
    /// The longest duration allowed.
    Long limit = kNoLimit;
};

/// The result depends on `chain` alone, unless it is stopped.
Solution RunChain(const ChainSpec& chain, SharedProgress& progress) {
    Random random(chain.seed);
    Neighborhood neighborhood(*chain.task, chain.initial->orders, chain.initial->pinned);
    IncrementalEvaluator evaluator(*chain.task);
    Solution best = *chain.initial;
    static_cast<void>(evaluator.Evaluate(neighborhood.Current(), 0, kNoLimit));
    evaluator.Accept();
    double objectiveValue = ObjectiveValue(best.score, chain.objective);
    const double step =
        std::pow(kFinalHeat / chain.heat, 1.0 / static_cast<double>(SearchBudget::kChainLength));
    double heat = chain.heat;
    for (std::uint64_t i = 0; i < SearchBudget::kChainLength && !progress.Stops(); ++i) {
        heat *= step;
        progress.CountTries();
        const auto from = neighborhood.Propose(random);
        if (!from) {
            continue;
        }
        // The worsening to accept is drawn first, so that the evaluation can stop there.
        const double limitValue =
            objectiveValue - heat * objectiveValue * std::log(random.UnitInterval());
        const Long limit = limitValue < chain.limit ? static_cast<Long>(limitValue) : chain.limit;
        const auto score = evaluator.Evaluate(neighborhood.Neighbor(), *from, limit);
        if (!score || ObjectiveValue(*score, chain.objective) > limitValue) {
            continue;
        }
        neighborhood.Accept();
        evaluator.Accept();
        objectiveValue = ObjectiveValue(*score, chain.objective);
        if (IsBetter(*score, best.score, chain.objective)) {
            best = {
                .orders = neighborhood.Current(), .pinned = neighborhood.Pinned(), .score = *score};
            progress.Report(score->duration);
        }
    }
    return best;
}

/// Chains that differ only in their number.
struct ChainSeries {
    const SearchTask* task;
    Solution initial;
    Objective objective;
    std::span<const double> heats;
    /// Factor on `heats`.
    double reheat;
    Long limit;
    /// The number of the first chain, and how many there are.
    std::uint64_t first;
    std::uint64_t count;
    std::uint64_t seed;

    /// If there are sleep windows, every other chain counts the night gap too.
    [[nodiscard]] ChainSpec ChainAt(std::uint64_t i) const {
        constexpr std::uint64_t kSeedDistance = 1'000'003;
        const std::uint64_t number = first + i;
        const bool night = objective == Objective::Duration && number % 2 == 1 &&
                           !task->conditions.Schlafzeiten.empty();
        return {.task = task,
                .initial = &initial,
                .objective = night ? Objective::NightGap : objective,
                .heat = reheat * heats[number / 2 % heats.size()],
                .seed = seed * kSeedDistance + number,
                .limit = limit};
    }
};

/// Threads that take the chains one by one. The result doesn't depend on their timing.
class ChainPool {
  public:
    ChainPool(ChainSeries series, unsigned threads, SharedProgress& progress)
        : m_series(std::move(series)), m_progress(&progress), m_best(m_series.initial) {
        m_running = std::clamp<std::uint64_t>(threads, 1, m_series.count);
        for (std::uint64_t i = m_running; i > 0; --i) {
            m_threads.emplace_back([this] { Work(); });
        }
    }

    /// The number, from 1, of the chain that was taken last.
    [[nodiscard]] std::uint64_t Last() const {
        return m_series.first + std::min(m_next.load(), m_series.count);
    }

    /// Waits for all chains and calls `poll` meanwhile. The best list; of equals the first chain's.
    template <class Callback>
    Solution Wait(Callback poll) {
        constexpr std::chrono::milliseconds kInterval(100);
        std::unique_lock lock(m_mutex);
        while (!m_finished.wait_for(lock, kInterval, [this] { return m_running == 0; })) {
            lock.unlock();
            poll();
            lock.lock();
        }
        lock.unlock();
        m_threads.clear();
        return std::move(m_best);
    }

  private:
    void Work() {
        for (std::uint64_t i = m_next++; i < m_series.count && !m_progress->Stops(); i = m_next++) {
            Take(RunChain(m_series.ChainAt(i), *m_progress), i);
        }
        const std::scoped_lock lock(m_mutex);
        --m_running;
        m_finished.notify_all();
    }

    void Take(Solution solution, std::uint64_t chain) {
        const std::scoped_lock lock(m_mutex);
        const bool worse = IsBetter(m_best.score, solution.score, m_series.objective);
        const bool isBetter = IsBetter(solution.score, m_best.score, m_series.objective);
        if (isBetter || (!worse && m_from && chain < *m_from)) {
            m_best = std::move(solution);
            m_from = chain;
        }
    }

    ChainSeries m_series;
    SharedProgress* m_progress;
    std::atomic<std::uint64_t> m_next{0};
    std::mutex m_mutex;
    std::condition_variable m_finished;
    std::uint64_t m_running = 0;
    Solution m_best;
    /// The chain that found it; nothing for the initial list.
    std::optional<std::uint64_t> m_from;
    std::vector<std::jthread> m_threads;
};

/// The task's list, or a greedy one if it is better or the task's list doesn't end.
std::optional<Solution> ChooseInitial(const SearchTask& task, const std::atomic<bool>& stop) {
    std::optional<Solution> own = Evaluate(task, task.orders);
    // A greedy list could have other orders before the pinned rows.
    const bool hasPinned = std::ranges::find(task.pinned, true) != task.pinned.end();
    if (own && (task.kind == SearchTask::Kind::Sequence || hasPinned)) {
        return own;
    }
    const auto list = FindInitialSolution(task, stop);
    const std::optional<Solution> greedy = list ? Evaluate(task, *list) : std::nullopt;
    if (!own || !greedy) {
        return own ? own : greedy;
    }
    return IsBetter(greedy->score, own->score, Objective::Duration) ? greedy : own;
}

/// Runs three series: chains from the initial list, chains from the best of those, and chains for
/// fewer sittings.
class SearchDriver {
  public:
    SearchDriver(const SearchTask& task, const SearchBudget& budget, const std::atomic<bool>& stop,
                 Solution initial)
        : m_task(task),
          m_budget(budget),
          m_progress(stop),
          m_chains(std::max<std::uint64_t>(1, budget.tries / SearchBudget::kChainLength)),
          m_initialDuration(initial.score.duration),
          m_best(std::move(initial)) {
        m_progress.Report(m_initialDuration);
    }

    SearchResult Run(const std::function<void(const SearchProgress&)>& report) {
        constexpr std::uint64_t kFour = 4;
        constexpr double kHundred = 100;
        const std::uint64_t forSittings = m_chains <= kFour            ? 0
                                          : m_budget.slackPercent == 0 ? 2
                                                                       : m_chains / kFour;
        const std::uint64_t forDuration = m_chains - forSittings;
        const std::uint64_t later = forDuration / kFour;
        RunSeries(forDuration - later, Objective::Duration, 1, kNoLimit, report);
        RunSeries(later, Objective::Duration, kReheat, kNoLimit, report);
        const double limit = m_best.score.duration * (1 + m_budget.slackPercent / kHundred);
        RunSeries(forSittings, Objective::Sittings, 1, static_cast<Long>(limit), report);
        return {.best = m_best,
                .tries = m_progress.Tries(),
                .totalTries = m_chains * SearchBudget::kChainLength};
    }

  private:
    /// Runs `number` chains from the best list so far.
    void RunSeries(std::uint64_t number, Objective objective, double reheat, Long limit,
                   const std::function<void(const SearchProgress&)>& report) {
        if (number == 0 || m_progress.Stops()) {
            return;
        }
        const auto freeCount = static_cast<std::size_t>(
            std::count(m_task.pinned.begin() + static_cast<std::ptrdiff_t>(m_task.headSize),
                       m_task.pinned.end(), false));
        ChainPool pool({.task = &m_task,
                        .initial = m_best,
                        .objective = objective,
                        .heats = InitialHeats(m_task, freeCount),
                        .reheat = reheat,
                        .limit = limit,
                        .first = m_begun,
                        .count = number,
                        .seed = m_budget.seed},
                       m_budget.threads, m_progress);
        m_best = pool.Wait([&] { report(Progress(pool.Last())); });
        m_begun += number;
    }

    SearchProgress Progress(std::uint64_t chain) {
        using Seconds = std::chrono::duration<double>;
        const auto [best, at] = m_progress.Best();
        const auto now = std::chrono::steady_clock::now();
        const std::uint64_t tries = m_progress.Tries();
        return {.bestDuration = best,
                .gain = m_initialDuration - best,
                .tries = tries,
                .totalTries = m_chains * SearchBudget::kChainLength,
                .chain = chain,
                .triesPerSecond = static_cast<double>(tries) / Seconds(now - m_begin).count(),
                .secondsSinceBest = Seconds(now - at).count()};
    }

    const SearchTask& m_task;
    const SearchBudget& m_budget;
    SharedProgress m_progress;
    std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
    std::uint64_t m_chains;
    Long m_initialDuration;
    Solution m_best;
    std::uint64_t m_begun = 0;
};

}  // namespace

std::optional<Solution> Evaluate(const SearchTask& task, const std::vector<Order>& orders) {
    const auto score = IncrementalEvaluator(task).Evaluate(orders, 0, kNoLimit);
    return score ? std::optional(Solution{.orders = orders, .pinned = task.pinned, .score = *score})
                 : std::nullopt;
}

SearchResult Search(const SearchTask& task, const SearchBudget& budget,
                    const std::atomic<bool>& stop,
                    const std::function<void(const SearchProgress&)>& report) {
    const std::optional<Solution> initial = ChooseInitial(task, stop);
    if (!initial) {
        // No tries at all, unless the search was stopped before it could start.
        return {.best = {}, .totalTries = stop ? budget.tries : 0};
    }
    return SearchDriver(task, budget, stop, *initial).Run(report);
}

}  // namespace tarvelin
