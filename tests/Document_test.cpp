// Tests the document: its operations, what it tells, what comes back at a start and is kept at an
// end.
#include "document/Document.h"

#include <memory>
#include <random>

#include "ScriptedPrompts.h"
#include "TestSupport.h"
#include "document/PlanRun.h"

namespace tarvelin {
namespace {

namespace fs = std::filesystem;

/// A document on Saturday, 18 November 2006, in a folder of its own.
class DocumentTest : public testing::Test {
  protected:
    DocumentTest() { fs::create_directory(m_saves); }

    std::unique_ptr<Document> Make() {
        return std::make_unique<Document>(
            m_prompts, [this] { return m_now; }, m_folder / "");
    }
    /// Begins a session, in which all boxes are recorded anew.
    std::unique_ptr<Document> Start(const fs::path& planFile = {}) {
        m_prompts.texts.clear();
        m_prompts.closedAll = false;
        auto document = Make();
        m_recovered = document->Start({}, planFile);
        return document;
    }
    void Close(Document& document) {
        document.Close(document.ConfigurationValues());
        m_prompts.closedAll = true;
    }
    static void Add(Document& document, std::string_view codes) {
        const Plan plan = PlanOf(codes);
        for (const Order& order : plan.LV_Bauliste.Orders().All()) {
            EXPECT_FALSE(order.kind == Order::Kind::Item ? document.AddItem(order.item)
                                                         : document.AddProduction(order.factors));
        }
    }
    static std::string Codes(const Document& document) { return Codes(document.CurrentPlan()); }
    static std::string Codes(const Plan& plan) {
        std::string text;
        for (const BuildListRow& row : plan.LV_Bauliste.Rows()) {
            text += (text.empty() ? "" : " ") + row.Tag;
        }
        return text;
    }
    /// The codes in a file below `saves`; "-" if there is none.
    std::string Stored(const char* name) {
        const auto profile = IniFile::Load(m_saves / name);
        Plan plan;
        MessageRecorder messages;
        return profile && ReadPlan(*profile, plan, {}, messages) ? Codes(plan) : "-";
    }
    void Store(const char* name, const Plan& plan) {
        ASSERT_TRUE(SaveBauliste(m_saves / name, plan));
    }
    std::string Config() { return ReadFileToString(m_folder / "config.cfg"); }

    TempFolder m_folder;
    fs::path m_saves = m_folder / "saves";
    Scripted<Prompts> m_prompts;
    DateTime m_now = *ParseDateTime("18.11.2006 09:15:00");
    bool m_recovered = false;
};

/// What edits change, as plain values.
struct ModelState {
    std::vector<std::string> codes;
    StartParameters parameters;
    SleepTable sleepTable;

    friend bool operator==(const ModelState&, const ModelState&) = default;
};

/// The plan as the operations should leave it, with a history of its own.
struct Model {
    ModelState state;
    bool showDesc = true;
    std::vector<ModelState> states;
    std::size_t at = 0;
    std::string input;

    void Record(const std::string& field = {}) {
        if (state == states[at]) {
            return;
        }
        states.resize(at + 1);
        const bool goesOn = !field.empty() && field == input;
        input = field;
        if (goesOn) {
            states.pop_back();
            if (state == states.back()) {
                --at;
                input.clear();
                return;
            }
        } else {
            ++at;
        }
        states.push_back(state);
    }
    void GoTo(std::size_t step) {
        at = step;
        state = states[at];
        input.clear();
    }
};

std::vector<Order> OrdersOf(const std::vector<std::string>& codes) {
    std::vector<Order> orders;
    std::ranges::transform(codes, std::back_inserter(orders),
                           [](const std::string& code) { return Order::FromTag(code); });
    return orders;
}

// Random operations beside a model: the file of the plan is that of a new document that was given
// the model's values.
TEST_F(DocumentTest, KeepsThePlanThroughAnyOperations) {
    std::minstd_rand random(2006);
    const auto below = [&](std::size_t n) { return static_cast<std::size_t>(random()) % n; };
    const auto document = Start();
    Model model;
    model.state.parameters = document->CurrentPlan().parameters;
    model.states = {model.state};
    std::optional<std::pair<ModelState, bool>> stored;
    const auto bytesOf = [&](Document& any) {
        fs::remove(m_saves / "probe.tvf");
        any.SaveBauliste(m_saves / "probe.tvf");
        return ReadFileToString(m_saves / "probe.tvf");
    };
    int told = 0;
    document->Observe([&](const DocumentChange&) {
        ++told;
        const Plan& plan = document->CurrentPlan();
        const bool runs = std::holds_alternative<RunConditions>(ParseRunConditions(plan));
        ASSERT_EQ(document->Trace().has_value(), runs) << "told before all is in place";
        EXPECT_TRUE(!runs || document->Trace()->starts.size() == plan.LV_Bauliste.Rows().size());
    });
    m_prompts.answer = true;
    for (int i = 0; i < 200; ++i) {
        const int toldBefore = told;
        const std::array codes{"GM", "GS", "GD", "GX:8:10:5", "GK"};
        ModelState& state = model.state;
        const std::size_t operation = below(15);
        SCOPED_TRACE(std::to_string(i) + ": " + std::to_string(operation));
        if (operation < 3) {
            state.codes.emplace_back(codes.at(below(codes.size())));
            Add(*document, state.codes.back());
            model.Record();
        } else if (operation == 3) {
            document->RemoveLast();
            if (!state.codes.empty()) {
                state.codes.pop_back();
            }
            model.Record();
        } else if (operation == 4 || operation == 5) {
            std::ranges::shuffle(state.codes, random);
            if (operation == 5) {
                state.codes.insert(state.codes.begin(), codes.at(below(codes.size())));
            }
            document->Edit(OrdersOf(state.codes));
            model.Record();
        } else if (operation == 6) {
            const SleepRow pause{"19.11.2006 0" + std::to_string(below(10)) + ":00",
                                 "20.11.2006 01:00"};
            EXPECT_TRUE(document->Adopt(OrdersOf(state.codes), pause, PlanSnapshot()));
            state.sleepTable.insert(state.sleepTable.begin(), pause);
            model.Record();
        } else if (operation == 7 || operation == 8) {
            const std::array<std::string, 3> hours{"12", "07", "99"};
            state.parameters.UniStartZeitStunden = hours.at(below(hours.size()));
            state.parameters.Speedfaktor_X2 = below(2) == 0;
            const std::string field = below(3) == 0 ? "" : "Stunden";
            document->SetParameters(state.parameters, field);
            model.Record(field);
        } else if (operation == 9) {
            state.sleepTable.resize(below(3));
            document->SetSleepTable(state.sleepTable);
            model.Record();
        } else if (operation == 10) {
            model.showDesc = below(2) == 0;
            document->SetShowDesc(model.showDesc);
        } else if (operation == 11 && model.at > 0) {
            document->Undo();
            model.GoTo(model.at - 1);
        } else if (operation == 12 && model.at + 1 < model.states.size()) {
            document->Redo();
            model.GoTo(model.at + 1);
        } else if (operation == 13) {
            const auto file = m_saves / "plan.tvf";
            if (stored && below(3) > 0) {
                document->LoadBauliste(file, true);
                std::tie(state, model.showDesc) = *stored;
                model.Record();
            } else {
                document->SaveBauliste(file);
                stored = {state, model.showDesc};
            }
        } else if (operation == 14) {
            if (below(4) == 0) {
                document->New();
                SetStartDate(state.parameters, m_now);
                state.codes.clear();
                model.Record();
            } else {
                document->RunSimulation(true);
            }
        }
        // Boxes of a run tell too.
        EXPECT_TRUE(told <= toldBefore + 1 || operation >= 13);
        ASSERT_EQ(document->CanUndo(), model.at > 0);
        ASSERT_EQ(document->CanRedo(), model.at + 1 < model.states.size());
        const auto fresh = Make();
        fresh->Edit(OrdersOf(state.codes));
        fresh->SetParameters(state.parameters, {});
        fresh->SetSleepTable(state.sleepTable);
        fresh->SetShowDesc(model.showDesc);
        ASSERT_EQ(bytesOf(*document), bytesOf(*fresh));
    }
    EXPECT_GT(model.states.size(), 20U);
}

/// "rows:3 plan": the parts in the order of their declaration.
std::string TextOf(const DocumentChange& change) {
    std::string text = "rows:" + std::to_string(static_cast<int>(change.rows)) +
                       " results:" + std::to_string(static_cast<int>(change.results));
    for (const auto& [part, name] :
         {std::pair(change.conditions, " conditions"), std::pair(change.sleepTable, " sleep"),
          std::pair(change.showDesc, " names"), std::pair(change.plan, " plan"),
          std::pair(change.title, " title"), std::pair(change.file, " file")}) {
        text += part ? name : "";
    }
    return text;
}

TEST_F(DocumentTest, TellsOncePerOperationWhatHasChanged) {
    const auto document = Start();
    Store("plan.tvf", PlanOf("GM GS"));
    std::vector<DocumentChange> told;
    document->Observe([&](const DocumentChange& change) { told.push_back(change); });
    StartParameters parameters = document->CurrentPlan().parameters;
    parameters.KlickPuffer = 7;
    const SleepTable night{{"20.11.2006 22:30", "20.11.2006 23:30"}};
    const auto found = OrdersOf({"GM", "GM"});
    const auto adopt = [&] {
        document->Adopt(found, night.front(), SnapshotOf(document->CurrentPlan()));
    };
    const std::vector<std::pair<const char*, std::function<void()>>> operations{
        {"rows:2 results:0 plan", [&] { EXPECT_FALSE(document->AddItem(ItemId::SKW)); }},
        {"rows:0 results:0 conditions plan", [&] { document->SetParameters(parameters, {}); }},
        {"rows:0 results:0 names", [&] { document->SetShowDesc(false); }},
        {"rows:0 results:0 sleep plan", [&] { document->SetSleepTable(night); }},
        {"rows:0 results:2 conditions", [&] { document->RunSimulation(false); }},
        {"rows:1 results:1 conditions plan", [&] { document->Edit(found); }},
        {"rows:1 results:1 conditions plan", [&] { document->Undo(); }},
        {"rows:1 results:1 conditions sleep plan", adopt},
        {"rows:0 results:0 file", [&] { document->SaveBauliste(m_saves / "x.tvf"); }},
        {"rows:3 results:2 conditions sleep names plan title file",
         [&] { EXPECT_TRUE(document->LoadBauliste(m_saves / "plan.tvf", false)); }},
        {"rows:1 results:0 plan", [&] { document->RemoveLast(); }},
        {"rows:1 results:1 plan", [&] { document->Clear(); }},
        {"rows:1 results:1 conditions file", [&] { document->New(); }}};
    for (const auto& [change, operation] : operations) {
        told.clear();
        operation();
        ASSERT_EQ(told.size(), 1U) << change;
        EXPECT_EQ(TextOf(told.front()), change);
    }
    EXPECT_EQ(document->Title(), "Tarvelin  |  Kelva Aufbau-Simulator      ( plan.tvf )");
}

// Undo and redo run the plan for both views; an edit at the end of the list leaves the last run.
TEST_F(DocumentTest, ResultsAreThoseOfTheTraceOrOfTheLastRun) {
    const auto document = Start();
    Add(*document, "GM GM GS");
    EXPECT_TRUE(document->CurrentRun().LV_Bauzeiten.empty()) << "nobody has started a run";
    const auto expectSameRun = [&] {
        const LastRun& run = document->CurrentRun();
        ASSERT_EQ(run.LV_Bauzeiten.size(), document->Trace()->starts.size());
        EXPECT_EQ(run.state, document->Trace()->end);
        EXPECT_EQ(document->Texts().LBL_Timegone, "Dauer: " + DurationText(run.state));
        const PlanRun anew("", document->CurrentPlan());
        for (std::size_t i = 0; i < run.LV_Bauzeiten.size(); ++i) {
            EXPECT_EQ(run.LV_Bauzeiten[i].Tag(), anew.run.LV_Bauzeiten[i].Tag());
            EXPECT_EQ(run.LV_Bauzeiten[i].theText(), anew.run.LV_Bauzeiten[i].theText());
        }
    };
    document->Edit(OrdersOf({"GS", "GM", "GX:10:5:0", "GM", "GM"}));
    expectSameRun();
    document->Undo();
    expectSameRun();
    const Long duration = document->Trace()->Duration().Seconds();
    StartParameters parameters = document->CurrentPlan().parameters;
    for (const int seconds : {60, 65}) {
        parameters.KlickPuffer = seconds;
        document->SetParameters(parameters, "HSC_KlickPuffer");
    }
    EXPECT_EQ(document->DurationChange(), document->Trace()->Duration().Seconds() - duration)
        << "typing is one step";
    parameters.UniStartZeitMonat = "13";
    document->SetParameters(parameters, "Monat");
    EXPECT_EQ(document->Obstacle(), "Kein gültiges Datum eingegeben...");
    EXPECT_FALSE(document->Trace() || document->DurationChange());
    const std::string label = document->Texts().LBL_Timegone;
    document->Edit(OrdersOf({"GS"}));
    EXPECT_EQ(document->Texts().LBL_Timegone, label) << "nothing to show instead";
    document->Edit({});
    EXPECT_EQ(document->Obstacle(), "");
    EXPECT_EQ(document->Texts().LBL_Timegone, "Dauer: dd:hh:mm:ss");
}

TEST_F(DocumentTest, MessagesInARunShowTheRunSoFar) {
    const auto document = Start();
    int told = 0;
    document->Observe([&](const DocumentChange&) { ++told; });
    // The lab costs deuterium, and there is no deuterium mine.
    Add(*document, "GF GM GM GM GM");
    std::size_t messages = 0;
    m_prompts.onMessage = [&] {
        EXPECT_EQ(document->CurrentRun().LV_Bauzeiten.size(), ++messages);
        EXPECT_EQ(document->Texts().LBL_Punkte, "0");
        EXPECT_EQ(told, static_cast<int>(messages)) << "told before each box";
    };
    told = 0;
    document->RunSimulation(false);
    EXPECT_EQ(messages, 5U);
    EXPECT_EQ(told, 6);
    // From the second message on the user can suppress the rest of the run's.
    m_prompts.onMessage = nullptr;
    for (const int suppress : {1, 2}) {
        m_prompts.texts.clear();
        m_prompts.suppressible = 0;
        m_prompts.suppress = suppress;
        document->RunSimulation(true);
        EXPECT_EQ(m_prompts.texts.size(), 1U + static_cast<std::size_t>(suppress));
    }
    // Day and month are padded before the message about the date; that is no step.
    StartParameters parameters = document->CurrentPlan().parameters;
    parameters.UniStartZeitTag = "5";
    parameters.UniStartZeitMinuten = "x";
    document->SetParameters(parameters, "Tag");
    document->SaveBauliste(m_saves / "plan.tvf");
    m_prompts.texts.clear();
    document->RunSimulation(true);
    EXPECT_EQ(m_prompts.texts, std::vector<std::string>{"Kein gültiges Datum eingegeben..."});
    EXPECT_EQ(document->CurrentPlan().parameters.UniStartZeitTag, "05");
    EXPECT_TRUE(document->IsStored());
    document->Clear();
    document->RunSimulation(true);
    EXPECT_EQ(m_prompts.texts.size(), 1U) << "silent about an empty list";
    document->RunSimulation(false);
    EXPECT_EQ(m_prompts.texts.back(), "Die Bauliste ist leer...");
    EXPECT_EQ(document->CurrentRun().LV_Bauzeiten.size(), 5U) << "the last run stays";
}

TEST_F(DocumentTest, LoadsWhatIsUsableAndSaysWhatIsNot) {
    const auto document = Start();
    Add(*document, "GS GM");
    document->SaveBauliste(m_saves / "meiner");
    EXPECT_TRUE(document->LoadBauliste(m_saves / "meiner", false));
    WriteFile(m_saves / "kaputt.tvf",
              "[Einstellungen]\r\nKlickPuffer=7\r\nTempMax=11\r\nShowDesc=0\r\n"
              "Speedfaktor_X2=1\r\n[Schlafzeiten]\r\nItemCount=0\r\n"
              "[Bauliste]\r\nItemCount=2\r\nItem_001=GK\r\nItem_002=gk\r\n");
    EXPECT_FALSE(document->LoadBauliste(m_saves / "kaputt.tvf", false));
    EXPECT_EQ(m_prompts.texts,
              std::vector<std::string>{"Die Bauliste konnte nicht geladen werden..."});
    EXPECT_EQ(Codes(*document), "GK");
    EXPECT_EQ(document->CurrentPlan().parameters.KlickPuffer, 7);
    EXPECT_EQ(document->CurrentRun().conditions.Speedfaktor, 2);
    EXPECT_EQ(document->CurrentRun().LV_Bauzeiten.size(), 2U) << "nothing was run";
    EXPECT_TRUE(document->Title().ends_with("      ( meiner )"));
    document->Undo();
    EXPECT_EQ(Codes(*document), "GS GM");
    // A file that can't be read at all leaves the plan unchanged, and so does a failed save.
    for (const char* const file : {"fehlt.tvf", "../saves"}) {
        EXPECT_FALSE(document->LoadBauliste(m_saves / file, false));
    }
    EXPECT_EQ(Codes(*document), "GS GM");
    document->SaveBauliste(m_saves / "fehlt" / "x.tvf");
    EXPECT_EQ(m_prompts.texts.size(), 4U);
    EXPECT_EQ(m_prompts.texts.back(), "Die Bauliste konnte nicht gespeichert werden...");
}

TEST_F(DocumentTest, LoadsAPlanAsANewOne) {
    Store("vorlage.tvf", PlanOf("GS GM"));
    const auto document = Start();
    Add(*document, "GM");
    document->SaveBauliste(m_saves / "meiner.tvf");
    Add(*document, "GK");
    ASSERT_TRUE(document->LoadBauliste(m_saves / "meiner.tvf", true));
    ASSERT_TRUE(document->LoadAsNew(m_saves / "vorlage.tvf"));
    EXPECT_EQ(Codes(*document), "GS GM");
    EXPECT_EQ(document->CurrentRun().LV_Bauzeiten.size(), 2U) << "it is run";
    EXPECT_EQ(document->Title(), Make()->Title());
    EXPECT_FALSE(document->File() || document->IsStored());
    EXPECT_TRUE(document->IsModified());
    EXPECT_EQ(document->RecentFiles(), std::vector<fs::path>{m_saves / "meiner.tvf"});
    document->Undo();
    EXPECT_EQ(Codes(*document), "GM") << "one step";
    EXPECT_FALSE(document->LoadAsNew(m_saves / "fehlt.tvf"));
    EXPECT_EQ(Codes(*document), "GM");
}

TEST_F(DocumentTest, AsksBeforeAFindReplacesAnotherPlan) {
    const auto document = Start();
    Add(*document, "GM GS");
    const PlanSnapshot basis = SnapshotOf(document->CurrentPlan());
    const auto found = OrdersOf({"GS", "GM"});
    document->RemoveLast();
    EXPECT_FALSE(document->Adopt(found, {}, basis));
    EXPECT_EQ(Codes(*document), "GM");
    EXPECT_EQ(m_prompts.texts.size(), 1U);
    document->Undo();
    EXPECT_TRUE(document->Adopt(found, {}, basis));
    EXPECT_EQ(Codes(*document), "GS GM");
    EXPECT_EQ(m_prompts.texts.size(), 1U);
}

TEST_F(DocumentTest, ReplacedPlansAreKeptIfTheyAreStoredNowhere) {
    const auto document = Start();
    const auto file = m_saves / "meiner.tvf";
    Add(*document, "GS GM");
    document->SaveBauliste(file);
    document->New();
    EXPECT_EQ(Stored("ersetzt-1.tvf"), "-") << "it lies in its file";
    document->LoadBauliste(file, true);
    StartParameters parameters = document->CurrentPlan().parameters;
    parameters.UniStartZeitTag = "5";
    document->SetParameters(parameters, {});
    document->LoadBauliste(file, true);
    EXPECT_EQ(Stored("ersetzt-1.tvf"), "GS GM") << "another start is another plan";
    document->RunSimulation(true);
    document->RemoveLast();
    document->New();
    EXPECT_EQ(Stored("ersetzt-1.tvf"), "GS");
    // Loading a replaced plan moves it to the next name first, so it isn't stored in its file.
    Add(*document, "GS GM GM");
    document->LoadBauliste(m_saves / "ersetzt-1.tvf", true);
    EXPECT_EQ(Codes(*document), "GS");
    EXPECT_EQ(Stored("ersetzt-1.tvf"), "GS GM GM");
    document->New();
    EXPECT_EQ(Stored("ersetzt-1.tvf"), "GS");
}

TEST_F(DocumentTest, LastPlanComesBackAsAnswered) {
    struct Case {
        bool yes;
        bool always;
        const char* config;
    };
    for (const Case& testCase :
         {Case{false, false, "[StartSettings]\r\nRecover=0\r\n"},
          Case{false, true, "[StartSettings]\r\nAlwaysDoSo=1\r\nRecover=0\r\n"},
          Case{true, false, "[StartSettings]\r\nRecover=1\r\n"},
          Case{true, true, "[StartSettings]\r\nAlwaysDoSo=1\r\nRecover=1\r\n"}}) {
        SCOPED_TRACE(testCase.config);
        Store("autosave.tvf", PlanOf("GM GM"));
        WriteFile(m_folder / "config.cfg", "[Settings]\r\nFirststart=0\r\n");
        fs::remove(m_saves / "autosave-vorige.tvf");
        m_prompts.onQuestion = [&] {
            m_prompts.answer = m_prompts.texts.size() == 1 ? testCase.yes : testCase.always;
        };
        const auto document = Start();
        EXPECT_EQ(m_prompts.texts.size(), 2U);
        EXPECT_EQ(Codes(*document), testCase.yes ? "GM GM" : "");
        EXPECT_EQ(m_recovered, testCase.yes);
        EXPECT_TRUE(Config().ends_with(testCase.config));
        EXPECT_EQ(Stored("autosave.tvf"), "GM GM") << "nothing has changed yet";
        EXPECT_FALSE(document->CanUndo());
        Close(*document);
        EXPECT_EQ(Stored("autosave-vorige.tvf"), testCase.yes ? "-" : "GM GM");
        // As answered, without a question.
        if (testCase.always) {
            const auto again = Start();
            EXPECT_EQ(m_prompts.texts.size(), 0U);
            EXPECT_EQ(m_recovered, testCase.yes);
        }
    }
}

// Closing the program answers none of the questions.
TEST_F(DocumentTest, ClosingDuringTheQuestionsChangesNothing) {
    for (const std::size_t question : {1U, 2U}) {
        fs::remove(m_folder / "config.cfg");
        Store("basic.tvf", PlanOf("GM"));
        Store("autosave.tvf", PlanOf("GM GM"));
        m_prompts.texts.clear();
        m_prompts.closedAll = false;
        m_prompts.answer = true;
        const auto document = Make();
        m_prompts.onQuestion = [&] {
            if (m_prompts.texts.size() == question) {
                Close(*document);
            }
        };
        EXPECT_FALSE(document->Start({}, {}));
        EXPECT_FALSE(document->IsWorking());
        EXPECT_EQ(m_prompts.texts.size(), question);
        EXPECT_EQ(Stored("basic.tvf"), "GM") << "the start begins anew";
        EXPECT_EQ(Stored("autosave.tvf"), "GM GM");
        EXPECT_EQ(Config(), "");
        EXPECT_FALSE(document->Start({}, {}));
    }
}

// The starter plan is saved before its file is deleted, and the last plan isn't touched before the
// player has answered.
TEST_F(DocumentTest, StarterPlanAndLastPlanAreNotLost) {
    struct Case {
        bool last;
        bool again;
        const char* codes;
    };
    for (const Case& testCase :
         {Case{false, false, "GM"}, Case{true, false, "GM"}, Case{true, true, "GK GK"}}) {
        for (const char* const name :
             {"config.cfg", "saves/autosave.tvf", "saves/autosave-vorige.tvf"}) {
            fs::remove(m_folder / name);
        }
        Store("basic.tvf", PlanOf("GM"));
        if (testCase.last) {
            Store("autosave.tvf", PlanOf("GK GK"));
        }
        m_prompts.answer = testCase.again;
        m_prompts.onQuestion = [&] {
            EXPECT_EQ(Stored("basic.tvf"), "GM");
            EXPECT_EQ(Stored("autosave.tvf"), "GK GK");
        };
        const auto document = Start();
        document->WriteAutosave();
        EXPECT_EQ(m_prompts.texts.size(), testCase.last ? 2U : 0U);
        EXPECT_EQ(Stored("basic.tvf"), "-");
        EXPECT_EQ(document->Title().ends_with("( autosave.tvf )"), testCase.again);
        EXPECT_EQ(Codes(*document), testCase.codes);
        EXPECT_EQ(Stored("autosave.tvf"), testCase.codes);
        EXPECT_EQ(Stored("autosave-vorige.tvf"), testCase.last && !testCase.again ? "GK GK" : "-");
        EXPECT_NE(Config().find("Firststart=0"), std::string::npos);
        EXPECT_FALSE(document->IsStored()) << "its file is gone, or our own";
    }
}

// A double click on a plan file opens it; the previous plan is kept beside the autosave.
TEST_F(DocumentTest, OpensThePlanOfTheCommandLine) {
    Store("autosave.tvf", PlanOf("GM GM"));
    Store("meiner.tvf", PlanOf("GS GM GK"));
    Store("anderer.tvf", PlanOf("GS"));
    {
        const auto document = Make();
        document->Start(Message{.text = "Hinweis", .title = ""}, m_saves / "fehlt.tvf");
        EXPECT_EQ(m_prompts.texts.size(), 4U) << "notice, what can't be loaded, then as ever";
        EXPECT_EQ(m_prompts.texts.front(), "Hinweis");
        EXPECT_EQ(Stored("autosave.tvf"), "GM GM");
    }
    {
        const auto document = Start(m_saves / "meiner.tvf");
        EXPECT_EQ(Codes(*document), "GS GM GK");
        EXPECT_EQ(document->CurrentRun().LV_Bauzeiten.size(), 3U);
        EXPECT_EQ(Stored("autosave-vorige.tvf"), "GM GM");
        Close(*document);
    }
    // Opening one plan after another keeps the one that is stored nowhere else.
    {
        const auto document = Start(m_saves / "anderer.tvf");
        EXPECT_EQ(Stored("autosave-vorige.tvf"), "GM GM");
        Add(*document, "GM");
        Close(*document);
        EXPECT_EQ(Stored("autosave.tvf"), "GS GM");
    }
    {
        const auto document = Start(m_saves / "meiner.tvf");
        EXPECT_EQ(Stored("autosave-vorige.tvf"), "GS GM");
        Close(*document);
    }
    // The program's own files are no safe place for a plan, as they get overwritten.
    Close(*Start(m_saves / "autosave-vorige.tvf"));
    EXPECT_EQ(ReadFileToString(m_saves / "autosave.tvf").find("AusDatei=1"), std::string::npos);
}

TEST_F(DocumentTest, KeepsItsChangesFromTimeToTimeAndAtTheEnd) {
    const auto document = Start();
    document->WriteAutosave();
    EXPECT_FALSE(fs::exists(m_saves / "autosave.tvf")) << "nothing has changed";
    Add(*document, "GS GM");
    document->SetShowDesc(false);
    document->WriteAutosave();
    EXPECT_EQ(Stored("autosave.tvf"), "GS GM");
    EXPECT_NE(ReadFileToString(m_saves / "autosave.tvf").find("ShowDesc=0"), std::string::npos);
    // The end of a desktop session is announced and may still be cancelled.
    document->RemoveLast();
    document->Keep(document->ConfigurationValues());
    EXPECT_EQ(Stored("autosave.tvf"), "GS");
    EXPECT_NE(Config().find("ItemCount=1"), std::string::npos);
    EXPECT_TRUE(document->IsWorking());
    Add(*document, "GM");
    Close(*document);
    EXPECT_EQ(Stored("autosave.tvf"), "GS GM");
    EXPECT_NE(Config().find("ItemCount=2"), std::string::npos);
}

}  // namespace
}  // namespace tarvelin
