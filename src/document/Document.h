// The plan that the user edits, without a window: its last run, its history, its files.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "document/DocumentChange.h"
#include "document/Prompts.h"
#include "document/WindowTitle.h"
#include "persistence/Autosave.h"
#include "persistence/Configuration.h"
#include "plan/EditHistory.h"
#include "plan/Plan.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunSimulation.h"
#include "simulation/RunTrace.h"

namespace tarvelin {

/// Windows are views of it: each calls operations, and shows what it is told has changed. An
/// operation tells once, at its end; one that opens a box tells before, so that the user sees the
/// windows behind the box as they are.
///
/// An edit of the plan is a step to undo, and plays the plan once.
class Document {
  public:
    using Listener = std::function<void(const DocumentChange&)>;

    /// Begins with an empty plan that starts today. All arguments must outlive it. `now` is the
    /// wall clock; below `programFolder` lie `saves` and `config.cfg`.
    Document(Prompts& prompts, std::function<DateTime()> now,
             const std::filesystem::path& programFolder,
             const FileSystem& files = NativeFileSystem());

    /// `listener` is called until the document is destroyed.
    void Observe(Listener listener) { m_listeners.push_back(std::move(listener)); }

    [[nodiscard]] const Plan& CurrentPlan() const { return m_plan; }
    /// The run that was started last, or the reset since. An edit in the classic window leaves it.
    [[nodiscard]] const LastRun& CurrentRun() const { return m_run; }
    /// The labels that go with `CurrentRun`.
    [[nodiscard]] const ResultTexts& Texts() const { return m_texts; }
    /// The run of the plan as it stands; nothing if it can't be run.
    [[nodiscard]] const std::optional<RunTrace>& Trace() const { return m_trace; }
    /// Why there is no trace; empty if there is one, and for an empty list.
    [[nodiscard]] const std::string& Obstacle() const { return m_obstacle; }
    /// In seconds, by the last edit, undo or redo; nothing if there was none, or without a run
    /// before or after it.
    [[nodiscard]] std::optional<Long> DurationChange() const;
    [[nodiscard]] bool CanUndo() const { return m_history.CanUndo(); }
    [[nodiscard]] bool CanRedo() const { return m_history.CanRedo(); }
    /// The main window's caption.
    [[nodiscard]] const std::string& Title() const { return m_title; }
    /// Whether the plan as it stands is stored in a file of the user's.
    [[nodiscard]] bool IsStored() const { return m_saved == SnapshotOf(m_plan); }
    /// The user's file that the plan came from or was saved to last; nothing for a new plan.
    [[nodiscard]] const std::optional<std::filesystem::path>& File() const { return m_file; }
    /// Whether something would be lost that is in no file of the user's.
    [[nodiscard]] bool IsModified() const;
    /// The files that were loaded or saved last, the latest first.
    [[nodiscard]] const std::vector<std::filesystem::path>& RecentFiles() const {
        return m_recentFiles;
    }

    /// Begins the session: shows `notice`, then opens the plan in `planFile` if one is given, else
    /// the starter plan or, if the user wants it, the last plan. Returns whether that came back.
    bool Start(const std::optional<Message>& notice, const std::filesystem::path& planFile);
    /// Whether a session is on, and what is edited is the user's.
    [[nodiscard]] bool IsWorking() const { return m_phase == Phase::Working; }
    [[nodiscard]] bool IsClosed() const { return m_phase == Phase::Closed; }
    /// The plan's part of what `Keep` writes.
    [[nodiscard]] Configuration::Values ConfigurationValues() const;
    /// Writes what outlasts the session: these settings, and the plan once it is the user's.
    void Keep(const Configuration::Values& settings);
    /// Keeps, and ends the session. Operations that wait for an answer give up.
    void Close(const Configuration::Values& settings);
    /// Writes the plan if it has changed. To be called every few seconds.
    void WriteAutosave() { m_autosave.WriteIfChanged(m_plan); }

    /// Empties the list and lets the plan start today; sleep windows and title stay.
    void New();
    /// Loads a plan and runs it. `Silent` omits the message about an empty list. False, with a
    /// message, if the file holds no whole plan.
    bool LoadBauliste(const std::filesystem::path& File, bool Silent);
    /// Loads and runs a plan as `LoadBauliste` does, but as a new one, which has no file yet.
    bool LoadAsNew(const std::filesystem::path& File);
    /// False, with a message, if the file can't be written.
    bool SaveBauliste(const std::filesystem::path& File);
    /// Runs the plan. `Silent` omits the message about an empty list.
    void RunSimulation(bool Silent);

    /// Adds a row at the end. A message, and no change, if the list is full.
    [[nodiscard]] std::optional<Message> AddItem(ItemId item);
    [[nodiscard]] std::optional<Message> AddProduction(const MineFactors& factors);
    void RemoveLast();
    void Clear();
    /// `input` names the field that was typed into: changes in a row to one field are one step.
    void SetParameters(const StartParameters& parameters, std::string_view input);
    void SetSleepTable(SleepTable table);
    /// No step.
    void SetShowDesc(bool show);
    /// Makes these the rows of the list: at most 254, of known items. They are run at once, without
    /// boxes, as undo and redo do.
    void Edit(std::span<const Order> orders);
    /// The same for a list that was found for the plan `basis`, with a pause to put in front of the
    /// sleep windows. Asks first if the plan has changed since; false if it then stays.
    bool Adopt(std::span<const Order> orders, const std::optional<SleepRow>& pause,
               const PlanSnapshot& basis);
    void Undo();
    void Redo();

  private:
    enum class Phase { Before, Starting, Working, Closed };
    class Boxes;

    void Note(const DocumentChange& change) { m_change += change; }
    void Tell();
    bool OpenPlanFile(const std::filesystem::path& file);
    /// Whether the last plan came back.
    bool OpenFirstPlan();
    bool RecoverPlan(const std::optional<IniFile>& last);
    /// Without a file the plan is a new one.
    bool LoadBauliste(const std::optional<IniFile>& profile,
                      const std::optional<std::filesystem::path>& File, bool Silent);
    void ForgetFile();
    void RememberSaved(const std::filesystem::path& File);
    void ReadRecentFiles();
    void KeepReplaced() const;
    void ClearRows();
    std::optional<Message> FinishAppend(std::optional<Message> refusal);
    void Record(std::string_view input = {});
    void Apply(const PlanSnapshot& snapshot);
    void SetPlan(const PlanSnapshot& snapshot);
    void PlayPlan();
    void ShowTrace();
    void PadDate();

    Prompts& m_prompts;
    std::function<DateTime()> m_now;
    std::filesystem::path m_programFolder;
    const FileSystem& m_files;
    Configuration m_configuration;
    Autosave m_autosave;
    std::vector<Listener> m_listeners;
    /// Not told yet.
    DocumentChange m_change;
    Phase m_phase = Phase::Before;

    Plan m_plan;
    EditHistory m_history;
    /// The history's step count when the plan was last played, by which a step is noticed.
    std::size_t m_steps = 0;
    /// The plan as last loaded from or saved to a file of the user's.
    std::optional<PlanSnapshot> m_saved;
    std::optional<std::filesystem::path> m_file;
    /// The history's step count when it was loaded; 0 if it was saved since.
    std::size_t m_loadStep = 0;
    std::vector<std::filesystem::path> m_recentFiles;
    std::string m_title = kWindowTitle;

    LastRun m_run;
    ResultTexts m_texts;
    std::optional<RunTrace> m_trace;
    std::string m_obstacle;
    /// In seconds, before the last step.
    std::optional<Long> m_durationBefore;
};

}  // namespace tarvelin
