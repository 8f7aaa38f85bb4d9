// Snapshots of the plan, one after each edit.
#include "plan/EditHistory.h"

#include <utility>

namespace tarvelin {

void EditHistory::Begin(PlanSnapshot snapshot) {
    *this = EditHistory();
    m_snapshots.front() = std::move(snapshot);
}

bool EditHistory::Record(PlanSnapshot snapshot, std::string_view input) {
    if (snapshot == m_snapshots[m_current]) {
        return false;
    }
    m_snapshots.resize(m_current + 1);
    if (!input.empty() && input == m_input) {
        m_snapshots.pop_back();
        // Typed back to what it was.
        if (snapshot == m_snapshots.back()) {
            m_input.clear();
            --m_current;
            return true;
        }
    } else {
        ++m_current;
    }
    m_snapshots.push_back(std::move(snapshot));
    m_input = input;
    return true;
}

void EditHistory::RewriteDay(const StartParameters& before, const StartParameters& after) {
    for (PlanSnapshot& snapshot : m_snapshots) {
        StartParameters& parameters = snapshot.parameters;
        if (parameters.UniStartZeitTag == before.UniStartZeitTag &&
            parameters.UniStartZeitMonat == before.UniStartZeitMonat) {
            parameters.UniStartZeitTag = after.UniStartZeitTag;
            parameters.UniStartZeitMonat = after.UniStartZeitMonat;
        }
    }
    for (std::size_t i = m_snapshots.size() - 1; i > 0; --i) {
        if (m_snapshots[i] == m_snapshots[i - 1]) {
            m_snapshots.erase(m_snapshots.begin() + static_cast<std::ptrdiff_t>(i));
            m_current -= i <= m_current ? 1 : 0;
            m_input.clear();
        }
    }
}

const PlanSnapshot& EditHistory::Undo() {
    m_input.clear();
    return m_snapshots[--m_current];
}

const PlanSnapshot& EditHistory::Redo() {
    m_input.clear();
    return m_snapshots[++m_current];
}

}  // namespace tarvelin
