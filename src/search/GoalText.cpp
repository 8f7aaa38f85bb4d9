// Reads goals word by word and looks the words up among codes and names.
#include "search/GoalText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

#include "model/ItemTable.h"
#include "plan/OrderList.h"
#include "util/NumberText.h"
#include "util/Utf8.h"

namespace tarvelin {

namespace {

constexpr std::string_view kWholePlan = "der ganze Plan";

/// Lower case, with umlauts as two letters.
std::string Folded(std::string_view text) {
    std::string folded;
    while (!text.empty()) {
        const char32_t character = TakeCodePoint(text);
        switch (character) {
            case U'Ä':
            case U'ä':
                folded += "ae";
                break;
            case U'Ö':
            case U'ö':
                folded += "oe";
                break;
            case U'Ü':
            case U'ü':
                folded += "ue";
                break;
            case U'ß':
                folded += "ss";
                break;
            default:
                AppendCodePoint(folded, character >= U'A' && character <= U'Z'
                                            ? character - U'A' + U'a'
                                            : character);
        }
    }
    return folded;
}

/// A piece of a text, from `begin` to before `end`.
struct Token {
    enum class Kind : std::uint8_t { Word, Number, Comma };
    Kind kind = Kind::Word;
    std::size_t begin = 0;
    std::size_t end = 0;
    /// Words are folded.
    std::string text{};
};

using Tokens = std::vector<Token>;
/// Words of a text, side by side.
using Phrase = std::span<const Token>;

Tokens SplitIntoTokens(std::string_view text) {
    constexpr std::string_view kSkipped = " \t\r\n.:";
    constexpr std::string_view kDigits = "0123456789";
    constexpr std::string_view kNoWord = " \t\r\n.:,0123456789";
    Tokens tokens;
    for (std::size_t begin = 0; (begin = text.find_first_not_of(kSkipped, begin)) < text.size();) {
        Token token{.begin = begin, .end = begin + 1};
        if (text[begin] == ',') {
            token.kind = Token::Kind::Comma;
        } else if (kDigits.find(text[begin]) != std::string_view::npos) {
            token.kind = Token::Kind::Number;
            token.end = std::min(text.find_first_not_of(kDigits, begin), text.size());
        } else {
            token.end = std::min(text.find_first_of(kNoWord, begin), text.size());
        }
        token.text = Folded(text.substr(begin, token.end - begin));
        begin = token.end;
        if (token.text != "stufe" && token.text != "nr") {
            tokens.push_back(std::move(token));
        }
    }
    return tokens;
}

std::string Joined(Phrase phrase) {
    std::string text;
    for (const Token& word : phrase) {
        text += (text.empty() ? "" : " ") + word.text;
    }
    return text;
}

using Names = std::array<Tokens, 4>;

/// The names of the items in words.
const PerItem<Names>& ItemNames() {
    static const PerItem<Names> itemNames = [] {
        PerItem<Names> all;
        for (const ItemRow& row : ItemTable()) {
            all[row.item] = {SplitIntoTokens(row.name), SplitIntoTokens(row.listText),
                             SplitIntoTokens(row.reportText), SplitIntoTokens(row.HoverName())};
        }
        return all;
    }();
    return itemNames;
}

std::size_t WordsOfLongestName() {
    static const std::size_t longest = [] {
        std::size_t words = 0;
        for (const Names& names : ItemNames()) {
            for (const Tokens& name : names) {
                words = std::max(words, name.size());
            }
        }
        return words;
    }();
    return longest;
}

bool BeginsWith(Phrase name, Phrase phrase) {
    return phrase.size() <= name.size() &&
           std::ranges::equal(name.first(phrase.size()), phrase,
                              [](const Token& whole, const Token& beginning) {
                                  return whole.text.starts_with(beginning.text);
                              });
}

/// Whether a phrase is a part of a name, or its words are beginnings of words that follow each
/// other in it.
bool IsPartOf(Phrase name, Phrase phrase) {
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (BeginsWith(name.subspan(i), phrase)) {
            return true;
        }
    }
    return Joined(name).find(Joined(phrase)) != std::string::npos;
}

template <class Fits>
bool AnyName(ItemId item, Phrase phrase, Fits fits) {
    return std::ranges::any_of(ItemNames()[item],
                               [&](const Tokens& name) { return fits(name, phrase); });
}

std::optional<ItemId> ItemOfCode(const std::string& folded) {
    for (const ItemRow& row : ItemTable()) {
        if (Folded(row.ItemCode) == folded) {
            return row.item;
        }
    }
    return std::nullopt;
}

/// The items that have a name which the phrase fits.
std::vector<ItemId> FittingItems(Phrase phrase) {
    std::vector<ItemId> items;
    for (const ItemRow& row : ItemTable()) {
        if (AnyName(row.item, phrase, IsPartOf)) {
            items.push_back(row.item);
        }
    }
    return items;
}

/// The words with which a text begins.
Phrase LeadingWords(Phrase tokens) {
    const auto end = std::ranges::find_if(
        tokens, [](const Token& token) { return token.kind != Token::Kind::Word; });
    return {tokens.begin(), end};
}

const Tokens& WordsOfWholePlan() {
    static const Tokens words = SplitIntoTokens(kWholePlan);
    return words;
}

bool NamesWholePlan(Phrase tokens) {
    const std::string text = Joined(tokens);
    return text == Joined(WordsOfWholePlan()) || text == WordsOfWholePlan().back().text;
}

bool MayBecomeWholePlan(Phrase phrase) {
    return BeginsWith(WordsOfWholePlan(), phrase) ||
           WordsOfWholePlan().back().text.starts_with(Joined(phrase));
}

/// "Leichter Laser, Schwerer Laser oder Lasertechnik".
std::string Alternatives(const std::vector<ItemId>& items) {
    constexpr std::size_t kMost = 5;
    const std::size_t shown = std::min(items.size(), kMost);
    std::string text;
    for (std::size_t i = 0; i < shown; ++i) {
        const bool last = i + 1 == items.size();
        text += (i == 0 ? "" : last ? " oder " : ", ") + std::string(RowOf(items[i]).name);
    }
    return text + (shown < items.size() ? " oder anderes" : "");
}

/// Takes one item after another off the front of a text.
class GoalReader {
  public:
    explicit GoalReader(std::string_view text)
        : m_text(text), m_tokens(SplitIntoTokens(text)), m_rest(m_tokens) {}

    std::variant<Goal, std::string> Read() {
        if (NamesWholePlan(m_rest)) {
            return Goal{.ofPlan = true};
        }
        while (!m_rest.empty()) {
            if (m_rest.front().kind == Token::Kind::Comma) {
                m_rest = m_rest.subspan(1);
            } else if (const auto error = ReadItem()) {
                return *error;
            }
        }
        if (m_goal == Goal()) {
            return "Das Ziel ist leer: erwartet wird etwa \"Werft 2, Kl. Transporter\" oder plan";
        }
        return m_goal;
    }

  private:
    /// The items that the next words name, as many words as possible.
    struct Name {
        std::vector<ItemId> items;
        std::size_t words = 1;
    };
    [[nodiscard]] Name ReadName() const {
        if (const auto item = ItemOfCode(m_rest.front().text)) {
            return {.items = {*item}};
        }
        Name name{.items = {},
                  .words = std::min(LeadingWords(m_rest).size(), WordsOfLongestName())};
        while ((name.items = FittingItems(m_rest.first(name.words))).empty() && name.words > 1) {
            --name.words;
        }
        return name;
    }

    /// A name and its number; the error message if they are none.
    std::optional<std::string> ReadItem() {
        if (m_rest.front().kind == Token::Kind::Number) {
            return Quoted(1) + ": vor der Zahl fehlt ein Name, etwa Werft 2";
        }
        const auto [items, words] = ReadName();
        const bool numbered = words < m_rest.size() && m_rest[words].kind == Token::Kind::Number;
        const std::size_t size = words + (numbered ? 1 : 0);
        if (items.empty()) {
            return Quoted(size) + " nennt kein Item: erwartet wird etwa Werft 2 oder GW2";
        }
        if (items.size() > 1) {
            return Quoted(size) + " ist nicht eindeutig: " + Alternatives(items) + "?";
        }
        const Byte highest = HighestInGoal(items.front());
        const auto number = numbered ? ParseWholeNumber(m_rest[words].text, 1, highest)
                                     : std::optional<std::int64_t>(1);
        if (!number) {
            return Quoted(size) + ": die Stufe oder Anzahl muss von 1 bis " +
                   std::to_string(highest) + " gehen";
        }
        Byte& level = m_goal.levels[items.front()];
        level = std::max(level, static_cast<Byte>(*number));
        m_rest = m_rest.subspan(size);
        return std::nullopt;
    }

    /// The next tokens as they were typed.
    [[nodiscard]] std::string Quoted(std::size_t count) const {
        const std::size_t begin = m_rest.front().begin;
        return "\"" + std::string(m_text.substr(begin, m_rest[count - 1].end - begin)) + "\"";
    }

    std::string_view m_text;
    Tokens m_tokens;
    Phrase m_rest;
    Goal m_goal;
};

/// How likely an item is meant by what is typed so far, 0 the most; nothing if it doesn't fit.
std::optional<int> CompletionRank(const ItemRow& row, Phrase phrase) {
    const std::string text = Joined(phrase);
    const std::string code = Folded(row.ItemCode);
    return code == text                            ? std::optional(0)
           : AnyName(row.item, phrase, BeginsWith) ? std::optional(1)
           : code.starts_with(text)                ? std::optional(2)
           : AnyName(row.item, phrase, IsPartOf)   ? std::optional(3)
                                                   : std::nullopt;
}

std::vector<std::string> FittingNames(Phrase phrase) {
    std::vector<std::pair<int, std::string>> ranked;
    for (const ItemRow& row : ItemTable()) {
        if (const auto rank = CompletionRank(row, phrase)) {
            ranked.emplace_back(*rank, row.name);
        }
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<int, std::string>::first);
    std::vector<std::string> names;
    names.reserve(ranked.size());
    for (auto& [rank, name] : ranked) {
        names.push_back(std::move(name));
    }
    return names;
}

/// The words after the last comma or number.
Phrase TrailingWords(Phrase tokens) {
    while (LeadingWords(tokens).size() < tokens.size()) {
        tokens = tokens.subspan(LeadingWords(tokens).size() + 1);
    }
    return tokens;
}

}  // namespace

Byte HighestInGoal(ItemId item) {
    return std::min(RowOf(item).traits.maxCount, Byte{OrderList::kMaxSize});
}

std::variant<Goal, std::string> ParseGoal(std::string_view text) {
    return GoalReader(text).Read();
}

std::string GoalText(const Goal& goal) {
    if (goal.ofPlan) {
        return std::string(kWholePlan);
    }
    std::string text;
    for (const ItemRow& row : ItemTable()) {
        if (goal.levels[row.item] > 0) {
            text += (text.empty() ? "" : ", ") + std::string(row.name) + " " +
                    std::to_string(goal.levels[row.item]);
        }
    }
    return text;
}

GoalCompletions CompleteGoal(std::string_view text) {
    const Tokens tokens = SplitIntoTokens(text);
    if (NamesWholePlan(tokens)) {
        return {};
    }
    Phrase phrase = TrailingWords(tokens);
    for (; !phrase.empty(); phrase = phrase.subspan(1)) {
        std::vector<std::string> names = FittingNames(phrase);
        if (phrase.size() == tokens.size() && MayBecomeWholePlan(phrase)) {
            names.insert(names.begin(), std::string(kWholePlan));
        }
        if (!names.empty()) {
            std::erase_if(names, [&](const std::string& name) {
                return Joined(SplitIntoTokens(name)) == Joined(phrase);
            });
            return {.begin = phrase.front().begin, .names = std::move(names)};
        }
    }
    return {};
}

}  // namespace tarvelin
