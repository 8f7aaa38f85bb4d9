// The operations on the plan, and the decisions of start and end.
#include "document/Document.h"

#include <algorithm>
#include <utility>

#include "persistence/PlanFile.h"
#include "util/Utf8.h"

namespace tarvelin {

/// Shows messages of an operation. From the second one on the user can turn off the rest.
class Document::Boxes final : public MessageSink {
  public:
    explicit Boxes(Document& document) : m_document(document) {}

    void Show(const Message& message) override {
        if (!m_wanted) {
            return;
        }
        // A run has gone on since it told last.
        m_document.Note({.results = DocumentChange::Results::Changed});
        m_document.Tell();
        if (m_first) {
            m_document.m_prompts.Show(message);
        } else {
            m_wanted = m_document.m_prompts.ShowSuppressible(message);
        }
        m_first = false;
    }
    void Beep() override { m_document.m_prompts.Beep(); }

  private:
    Document& m_document;
    bool m_first = true;
    bool m_wanted = true;
};

Document::Document(Prompts& prompts, std::function<DateTime()> now,
                   const std::filesystem::path& programFolder, const FileSystem& files)
    : m_prompts(prompts),
      m_now(std::move(now)),
      m_programFolder(programFolder),
      m_files(files),
      m_configuration(programFolder, files),
      m_autosave(programFolder, files) {
    SetStartDate(m_plan.parameters, m_now());
    m_history.Begin(SnapshotOf(m_plan));
}

void Document::Tell() {
    const DocumentChange change = std::exchange(m_change, {});
    if (change != DocumentChange()) {
        for (const Listener& listener : m_listeners) {
            listener(change);
        }
    }
}

std::optional<Long> Document::DurationChange() const {
    const bool edited = CanUndo() || CanRedo();
    return edited && m_durationBefore && m_trace
               ? std::optional(m_trace->Duration().Seconds() - *m_durationBefore)
               : std::nullopt;
}

bool Document::Start(const std::optional<Message>& notice, const std::filesystem::path& planFile) {
    if (IsClosed()) {
        return false;
    }
    m_phase = Phase::Starting;
    ReadRecentFiles();
    if (notice) {
        m_prompts.Show(*notice);
    }
    bool recovered = false;
    if (!IsClosed() && !OpenPlanFile(planFile) && !IsClosed()) {
        recovered = OpenFirstPlan();
    }
    if (!IsClosed()) {
        m_phase = Phase::Working;
        m_history.Begin(SnapshotOf(m_plan));
        PlayPlan();
        Tell();
    }
    return recovered;
}

// `Write` keeps a copy of the last session's plan.
bool Document::OpenPlanFile(const std::filesystem::path& file) {
    if (file.empty() || !LoadBauliste(file, false) || IsClosed()) {
        return false;
    }
    if (m_saved) {
        m_autosave.MarkStoredInFile(m_plan);
    }
    m_autosave.Write(m_plan);
    return true;
}

// The file of the last plan is left alone until the user has said whether he wants it.
bool Document::OpenFirstPlan() {
    const bool firstStart = m_configuration.IsOn(Configuration::kFirststart);
    const bool wasPresent = FileExists(m_autosave.PlanPath(), m_files);
    const auto last = IniFile::Load(m_autosave.PlanPath(), m_files);
    const auto starterPlan = m_programFolder / "saves" / "basic.tvf";
    const bool loaded =
        firstStart && FileExists(starterPlan, m_files) && LoadBauliste(starterPlan, false);
    const bool recovered = wasPresent && RecoverPlan(last);
    if (IsClosed()) {
        return recovered;
    }
    const bool kept = !loaded || recovered || m_autosave.Write(m_plan);
    m_autosave.MarkWritten(m_plan);
    if (firstStart && kept) {
        DeleteFile(starterPlan, m_files);
        m_saved.reset();
        m_file.reset();
        std::erase(m_recentFiles, starterPlan);
        m_configuration.Write({{Configuration::kFirststart, "0"}});
    }
    return recovered;
}

bool Document::RecoverPlan(const std::optional<IniFile>& last) {
    const auto decision = DecideRecovery(m_configuration);
    if (IsClosed() || decision == Recovery::Never) {
        return false;
    }
    const auto load = [&] { LoadBauliste(last, m_autosave.PlanPath(), true); };
    if (decision == Recovery::Always) {
        load();
        return true;
    }
    const auto ask = [this](const char* text) {
        return m_prompts.Ask(
            {.text = text, .title = "Wiederherstellen...", .icon = MessageIcon::Question});
    };
    const bool yes = ask("Möchtest du die letzte Bauliste wiederherstellen?");
    const bool always = ask("Bei jedem Start so verfahren?");
    if (IsClosed()) {
        // The program was closed: that is no answer.
        return false;
    }
    if (always) {
        m_configuration.Write({{Configuration::kAlwaysDoSo, "1"}});
    }
    if (yes) {
        load();
    }
    m_configuration.Write({{Configuration::kRecover, yes ? "1" : "0"}});
    return yes;
}

Configuration::Values Document::ConfigurationValues() const {
    if (!IsWorking()) {
        return {};
    }
    Configuration::Values values{
        {Configuration::kItemCount, std::to_string(m_plan.LV_Bauliste.Orders().Size())}};
    for (std::size_t i = 0; i < m_recentFiles.size(); ++i) {
        values.emplace_back(Configuration::kRecentFiles[i], PathToUtf8(m_recentFiles[i]));
    }
    return values;
}

void Document::Keep(const Configuration::Values& settings) {
    // Before, nothing has been read that could be kept.
    if (m_phase == Phase::Starting || m_phase == Phase::Working) {
        m_configuration.Write(settings);
    }
    if (m_phase == Phase::Working) {
        m_autosave.WriteAtExit(m_plan);
    }
}

void Document::Close(const Configuration::Values& settings) {
    Keep(settings);
    m_phase = Phase::Closed;
}

void Document::New() {
    KeepReplaced();
    m_run.ResetSimulation(m_plan.parameters);
    m_texts.AfterReset();
    ClearRows();
    SetStartDate(m_plan.parameters, m_now());
    m_file.reset();
    Note({.conditions = true, .file = true});
    Record();
    Tell();
}

bool Document::LoadBauliste(const std::filesystem::path& File, bool Silent) {
    return LoadBauliste(IniFile::Load(File, m_files), File, Silent);
}

bool Document::LoadAsNew(const std::filesystem::path& File) {
    return LoadBauliste(IniFile::Load(File, m_files), std::nullopt, true);
}

bool Document::LoadBauliste(const std::optional<IniFile>& profile,
                            const std::optional<std::filesystem::path>& File, bool Silent) {
    if (!profile) {
        m_prompts.Show(LoadErrorMessage());
        return false;
    }
    KeepReplaced();
    ClearRows();
    std::vector<Message> errors;
    MessageCollector collector(errors);
    const bool loaded = ReadPlan(*profile, m_plan, m_run.conditions, collector);
    m_run.conditions.Speedfaktor = m_plan.parameters.Speedfaktor();
    Note({.rows = DocumentChange::Rows::Replaced,
          .conditions = true,
          .sleepTable = true,
          .showDesc = true});
    if (loaded && File) {
        RememberSaved(*File);
    } else if (loaded) {
        ForgetFile();
    }
    // The former plan can be restored by undo, even if the load failed.
    Record();
    if (!loaded) {
        m_file.reset();
        Boxes(*this).Show(errors.back());
        return false;
    }
    m_title = File ? WindowTitleFor(*File) : kWindowTitle;
    Note({.title = true});
    RunSimulation(Silent);
    m_loadStep = m_history.StepCount();
    return true;
}

bool Document::SaveBauliste(const std::filesystem::path& File) {
    if (!tarvelin::SaveBauliste(File, m_plan, m_files)) {
        m_prompts.Show(SaveErrorMessage());
        return false;
    }
    RememberSaved(File);
    m_loadStep = 0;
    Tell();
    return true;
}

bool Document::IsModified() const {
    return m_file ? !IsStored() : !m_plan.LV_Bauliste.Orders().IsEmpty();
}

void Document::ForgetFile() {
    m_saved.reset();
    m_file.reset();
    Note({.file = true});
}

// Files that the program itself overwrites don't count.
void Document::RememberSaved(const std::filesystem::path& File) {
    if (m_autosave.IsOwnFile(File)) {
        ForgetFile();
        return;
    }
    m_saved = SnapshotOf(m_plan);
    m_file = File;
    std::erase(m_recentFiles, File);
    m_recentFiles.insert(m_recentFiles.begin(), File);
    m_recentFiles.resize(std::min(m_recentFiles.size(), Configuration::kRecentFiles.size()));
    Note({.file = true});
}

void Document::ReadRecentFiles() {
    for (const ConfigKey& key : Configuration::kRecentFiles) {
        const std::string file = m_configuration.Read(key);
        if (!file.empty()) {
            m_recentFiles.push_back(PathFromUtf8(file));
        }
    }
}

void Document::KeepReplaced() const {
    if (IsWorking() && !IsStored()) {
        m_autosave.KeepReplaced(m_plan);
    }
}

void Document::RunSimulation(bool Silent) {
    m_run.conditions.Speedfaktor = m_plan.parameters.Speedfaktor();
    const bool empty = m_plan.LV_Bauliste.Orders().IsEmpty();
    if (!empty) {
        PadDate();
    }
    Boxes boxes(*this);
    const auto conditions = ParseRunConditions(m_plan);
    if (const auto* const refusal = std::get_if<Message>(&conditions)) {
        if (!Silent || !empty) {
            boxes.Show(*refusal);
        }
        Tell();
        return;
    }
    m_run.ResetSimulation(std::get<RunConditions>(conditions));
    m_texts.AfterReset();
    Note({.results = DocumentChange::Results::NewRun});
    tarvelin::RunSimulation(m_plan.LV_Bauliste.Orders().All(), m_run, boxes);
    m_texts.AfterRun(m_run.state);
    Note({.results = DocumentChange::Results::Changed});
    Tell();
}

// Not an edit: nothing to undo, and a saved plan still counts as saved.
void Document::PadDate() {
    const bool isStored = IsStored();
    const StartParameters before = m_plan.parameters;
    PadStartDate(m_plan.parameters);
    m_history.RewriteDay(before, m_plan.parameters);
    if (isStored) {
        m_saved = SnapshotOf(m_plan);
    }
    Note({.conditions = true});
}

std::optional<Message> Document::AddItem(ItemId item) {
    return FinishAppend(m_plan.LV_Bauliste.AddItem(item, m_run.conditions));
}

std::optional<Message> Document::AddProduction(const MineFactors& factors) {
    return FinishAppend(m_plan.LV_Bauliste.AddProduction(factors, m_run.conditions));
}

std::optional<Message> Document::FinishAppend(std::optional<Message> refusal) {
    if (!refusal) {
        Note({.rows = DocumentChange::Rows::Appended});
        Record();
        Tell();
    }
    return refusal;
}

void Document::RemoveLast() {
    m_plan.LV_Bauliste.RemoveLast();
    Note({.rows = DocumentChange::Rows::Changed});
    Record();
    Tell();
}

void Document::Clear() {
    ClearRows();
    Record();
    Tell();
}

void Document::ClearRows() {
    m_plan.LV_Bauliste.Clear();
    m_texts.AfterClear();
    Note({.rows = DocumentChange::Rows::Changed, .results = DocumentChange::Results::Changed});
}

void Document::SetParameters(const StartParameters& parameters, std::string_view input) {
    m_plan.parameters = parameters;
    m_run.conditions.Speedfaktor = parameters.Speedfaktor();
    Note({.conditions = true});
    Record(input);
    Tell();
}

void Document::SetSleepTable(SleepTable table) {
    m_plan.LV_Schlafzeiten = std::move(table);
    Note({.sleepTable = true});
    Record();
    Tell();
}

void Document::SetShowDesc(bool show) {
    m_plan.ShowDesc = show;
    Note({.showDesc = true});
    Tell();
}

void Document::Edit(std::span<const Order> orders) {
    PlanSnapshot snapshot = SnapshotOf(m_plan);
    snapshot.orders.assign(orders.begin(), orders.end());
    Apply(snapshot);
}

bool Document::Adopt(std::span<const Order> orders, const std::optional<SleepRow>& pause,
                     const PlanSnapshot& basis) {
    if (SnapshotOf(m_plan) != basis &&
        !m_prompts.Ask({.text = "Der Plan wurde seit dem Beginn der Suche geändert. Soll der "
                                "gefundene trotzdem an seine Stelle treten?",
                        .title = "Übernehmen...",
                        .icon = MessageIcon::Question})) {
        return false;
    }
    PlanSnapshot snapshot = SnapshotOf(m_plan);
    snapshot.orders.assign(orders.begin(), orders.end());
    if (pause) {
        snapshot.Schlafzeiten.insert(snapshot.Schlafzeiten.begin(), *pause);
    }
    Apply(snapshot);
    return true;
}

void Document::Undo() {
    if (!CanUndo()) {
        return;
    }
    const PlanSnapshot& snapshot = m_history.Undo();
    if (m_history.StepCount() < m_loadStep) {
        // What comes back was never in the file that was loaded over it.
        m_file.reset();
        Note({.file = true});
    }
    SetPlan(snapshot);
}

void Document::Redo() {
    if (CanRedo()) {
        SetPlan(m_history.Redo());
    }
}

void Document::Apply(const PlanSnapshot& snapshot) {
    m_history.Record(snapshot);
    SetPlan(snapshot);
}

void Document::SetPlan(const PlanSnapshot& snapshot) {
    m_plan.parameters = snapshot.parameters;
    Note({.rows = DocumentChange::Rows::Changed,
          .conditions = true,
          .sleepTable = m_plan.LV_Schlafzeiten != snapshot.Schlafzeiten});
    m_plan.LV_Schlafzeiten = snapshot.Schlafzeiten;
    // The factor texts depend on the temperature, and have to fit the run that follows.
    m_run.conditions.Temperatur =
        ParseTemperature(m_plan.parameters).value_or(m_run.conditions.Temperatur);
    m_plan.LV_Bauliste.SetOrders(snapshot.orders, m_run.conditions);
    PlayPlan();
    ShowTrace();
    Tell();
}

void Document::Record(std::string_view input) {
    if (m_history.Record(SnapshotOf(m_plan), input)) {
        PlayPlan();
    }
}

// Nobody is shown its messages in boxes; they are in the trace.
void Document::PlayPlan() {
    if (m_steps != m_history.StepCount()) {
        m_steps = m_history.StepCount();
        m_durationBefore = m_trace ? std::optional(m_trace->Duration().Seconds()) : std::nullopt;
    }
    const auto& orders = m_plan.LV_Bauliste.Orders();
    const auto conditions = ParseRunConditions(m_plan);
    m_trace.reset();
    m_obstacle.clear();
    if (const auto* const parsed = std::get_if<RunConditions>(&conditions)) {
        m_trace = TraceRun(orders.All(), *parsed);
    } else if (!orders.IsEmpty()) {
        m_obstacle = std::get<Message>(conditions).text;
    }
    Note({.plan = true});
}

void Document::ShowTrace() {
    m_run.conditions.Speedfaktor = m_plan.parameters.Speedfaktor();
    if (m_trace) {
        m_run.Assign(*m_trace);
        m_texts.AfterRun(m_run.state);
    } else if (m_plan.LV_Bauliste.Orders().IsEmpty()) {
        m_run.ResetSimulation(m_plan.parameters);
        m_texts.AfterReset();
        m_texts.AfterClear();
    }
    Note({.results = DocumentChange::Results::Changed});
}

}  // namespace tarvelin
