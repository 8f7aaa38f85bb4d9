// What an operation has changed in the document.
#pragma once

#include <algorithm>
#include <cstdint>

namespace tarvelin {

/// Changes of several steps add up by `+=`.
struct DocumentChange {
    /// Each stands for more than the one before.
    enum class Rows : std::uint8_t {
        Kept,
        Changed,
        /// A row has come at the end.
        Appended,
        /// Another list: what was chosen in the old one isn't any more.
        Replaced,
    };
    enum class Results : std::uint8_t {
        Kept,
        Changed,
        /// A run that the user has started.
        NewRun,
    };

    Rows rows = Rows::Kept;
    /// The start parameters.
    bool conditions = false;
    bool sleepTable = false;
    /// Whether the names under the pictures are shown.
    bool showDesc = false;
    /// Schedule and labels of the last run or reset.
    Results results = Results::Kept;
    /// Trace and history: the user has changed the plan.
    bool plan = false;
    bool title = false;
    /// In which file the plan is stored, if in any.
    bool file = false;

    DocumentChange& operator+=(const DocumentChange& later) {
        rows = std::max(rows, later.rows);
        conditions |= later.conditions;
        sleepTable |= later.sleepTable;
        showDesc |= later.showDesc;
        results = std::max(results, later.results);
        plan |= later.plan;
        title |= later.title;
        file |= later.file;
        return *this;
    }

    friend bool operator==(const DocumentChange&, const DocumentChange&) = default;
};

}  // namespace tarvelin
