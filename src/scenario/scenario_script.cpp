#include "scenario/scenario_script.h"

#include <cctype>
#include <charconv>
#include <filesystem>
#include <optional>

#include "common/text.h"
#include "scenario/scenario_error.h"
#include "scenario/scenario_run.h"
#include "shell/controls/control.h"
#include "shell/controls/user_gestures.h"

namespace tarvex::scenario {

namespace {

constexpr const char* kMainWindow = "MDIMissionED";

struct Token {
    std::string text;
    bool quoted = false;
};

bool IsNameStart(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) || c == '_';
}
bool IsNameChar(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

// Puts in the value of the variable that starts at line[at] ("$NAME", "${NAME}" or "$$").
size_t ExpandVariable(std::string_view line, size_t at, const ScriptContext& context,
                      std::string& out) {
    size_t i = at + 1;
    if (i < line.size() && line[i] == '$') {
        out += '$';
        return i + 1;
    }
    const bool braced = i < line.size() && line[i] == '{';
    if (braced) ++i;
    const size_t start = i;
    if (i < line.size() && IsNameStart(line[i]))
        while (i < line.size() && IsNameChar(line[i]))
            ++i;
    const std::string name(line.substr(start, i - start));
    if (name.empty() || (braced && (i >= line.size() || line[i] != '}')))
        throw ScenarioError("a $ starts a variable such as $MISSION; write $$ for a dollar sign");
    if (braced) ++i;
    const auto it = context.variables.find(name);
    if (it == context.variables.end()) {
        if (name == "MISSION")
            throw ScenarioError("$MISSION is set only when missions are named after the scenario");
        throw ScenarioError("unknown variable $" + name);
    }
    out += it->second;
    return i;
}

std::vector<Token> SplitLine(std::string_view line, const ScriptContext& context) {
    std::vector<Token> tokens;
    size_t i = 0;
    while (i < line.size()) {
        const char c = line[i];
        if (c == ' ' || c == '\t' || c == '\r') {
            ++i;
        } else if (c == '#') {
            break;
        } else if (c == '"') {
            Token token{{}, true};
            ++i;
            for (;;) {
                if (i >= line.size()) throw ScenarioError("a text is not closed with \"");
                const char t = line[i];
                if (t == '"') {
                    ++i;
                    break;
                }
                if (t == '$') {
                    i = ExpandVariable(line, i, context, token.text);
                    continue;
                }
                if (t != '\\') {
                    token.text += t;
                    ++i;
                    continue;
                }
                if (i + 1 >= line.size()) throw ScenarioError("a text is not closed with \"");
                switch (line[i + 1]) {
                    case '"':
                    case '\\':
                        token.text += line[i + 1];
                        break;
                    case 'n':
                        token.text += '\n';
                        break;
                    case 'r':
                        token.text += '\r';
                        break;
                    case 't':
                        token.text += '\t';
                        break;
                    default:
                        throw ScenarioError(std::string("unknown escape \\") + line[i + 1] +
                                            " in a text (\\\" \\\\ \\n \\r \\t)");
                }
                i += 2;
            }
            tokens.push_back(std::move(token));
        } else {
            Token token;
            while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r' &&
                   line[i] != '"') {
                if (line[i] == '$') {
                    i = ExpandVariable(line, i, context, token.text);
                } else {
                    token.text += line[i++];
                }
            }
            tokens.push_back(std::move(token));
        }
    }
    return tokens;
}

std::optional<int> WholeNumber(const std::string& text) {
    int value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || text.empty()) return std::nullopt;
    return value;
}

std::optional<float> Number(const std::string& text) {
    float value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end || text.empty()) return std::nullopt;
    return value;
}

// "name" or "name(1)" or "name(1,2)": the name and the numbers in the brackets.
bool SplitCall(const std::string& text, std::string& name, std::vector<int>& args) {
    const size_t open = text.find('(');
    name = text.substr(0, open);
    if (name.empty() || !IsNameStart(name[0])) return false;
    for (char c : name)
        if (!IsNameChar(c)) return false;
    args.clear();
    if (open == std::string::npos) return true;
    if (text.back() != ')') return false;
    const std::string inside = text.substr(open + 1, text.size() - open - 2);
    size_t start = 0;
    for (;;) {
        const size_t comma = inside.find(',', start);
        const auto value = WholeNumber(Trim(inside.substr(start, comma - start)));
        if (!value) return false;
        args.push_back(*value);
        if (comma == std::string::npos) return true;
        start = comma + 1;
    }
}

const char* const kModifierWords = "left, right, middle, shift, ctrl, alt";

// The words of one line, read from the left.
class Args {
  public:
    Args(std::vector<Token> tokens, const ScriptContext& context)
        : tokens_(std::move(tokens)), context_(context) {}

    bool Done() const { return at_ >= tokens_.size(); }
    const Token* Peek(size_t ahead = 0) const {
        return at_ + ahead < tokens_.size() ? &tokens_[at_ + ahead] : nullptr;
    }

    Token Next(const std::string& what) {
        if (Done()) throw ScenarioError("missing " + what);
        return tokens_[at_++];
    }
    std::string Word(const std::string& what) {
        const Token token = Next(what);
        if (token.quoted) throw ScenarioError("expected " + what + ", not a text in quotes");
        return token.text;
    }
    std::string Text(const std::string& what) { return Next(what).text; }
    std::string Path(const std::string& what) {
        const std::string path = Text(what);
        if (path.empty()) throw ScenarioError("the " + what + " is empty");
        std::filesystem::path p(path);
        if (p.is_absolute() || context_.folder.empty()) return path;
        return (std::filesystem::path(context_.folder) / p).lexically_normal().string();
    }
    int Int(const std::string& what) {
        const Token token = Next(what);
        const auto value = token.quoted ? std::nullopt : WholeNumber(token.text);
        if (!value)
            throw ScenarioError("expected " + what + " (a whole number), not \"" + token.text +
                                "\"");
        return *value;
    }
    int Count() {
        if (Done() || IsModifier(*Peek())) return 1;
        const int times = Int("a number of times");
        if (times < 1) throw ScenarioError("a number of times is 1 or more");
        return times;
    }
    bool TakeWord(std::string_view word) {
        const Token* token = Peek();
        if (!token || token->quoted || !SameText(token->text, word)) return false;
        ++at_;
        return true;
    }

    ControlName Control(const char* defaultForm = "") {
        const std::string word = Word("a control");
        ControlName name;
        name.form = defaultForm;
        std::string local = word;
        std::vector<int> args;
        bool ok = true;
        if (const size_t dot = word.find('.'); dot != std::string::npos) {
            ok = SplitCall(word.substr(0, dot), name.form, args) && args.empty();
            local = word.substr(dot + 1);
        }
        ok = ok && SplitCall(local, name.name, args) && args.size() <= 1;
        if (!ok)
            throw ScenarioError("\"" + word +
                                "\" is not a control name such as lstPoints, optColor(3) or "
                                "frmNewRecord.btnAddRecord");
        if (!args.empty()) name.index = args[0];
        return name;
    }

    // A row: a number from 0, or the row's text in quotes.
    Spot Row() {
        const Token token = Next("a row");
        Spot spot;
        if (token.quoted) {
            spot.byText = true;
            spot.rowText = token.text;
            return spot;
        }
        const auto row = WholeNumber(token.text);
        if (!row) throw ScenarioError("expected a row (a number, or the row's text in quotes)");
        spot.row = *row;
        return spot;
    }

    // `count` places: each a row (one word) or a point X Y (two numbers), told apart by how
    // many numbers and texts stand before the modifiers.
    std::vector<Spot> Spots(size_t count) {
        size_t words = 0;
        while (Peek(words) && (Peek(words)->quoted || Number(Peek(words)->text)))
            ++words;
        std::vector<Spot> spots;
        if (words == 2 * count && !Peek()->quoted) {
            for (size_t i = 0; i < count; ++i) {
                Spot spot;
                spot.point = true;
                spot.x = Coordinate();
                spot.y = Coordinate();
                spots.push_back(spot);
            }
        } else if (words == count) {
            for (size_t i = 0; i < count; ++i)
                spots.push_back(Row());
        } else {
            throw ScenarioError(count == 1 ? "expected a row, or a point X Y in map units"
                                           : "expected two rows, or two points X Y in map units");
        }
        return spots;
    }

    Modifiers Keys() {
        Modifiers keys;
        while (!Done()) {
            const Token token = Next("");
            const std::string& w = token.text;
            if (token.quoted || !IsModifier(token))
                throw ScenarioError("unexpected \"" + w + "\" (modifiers: " + kModifierWords + ")");
            if (SameText(w, "left")) keys.button = kLeftButton;
            if (SameText(w, "right")) keys.button = kRightButton;
            if (SameText(w, "middle")) keys.button = kMiddleButton;
            if (SameText(w, "shift")) keys.shift |= kShiftMask;
            if (SameText(w, "ctrl")) keys.shift |= kCtrlMask;
            if (SameText(w, "alt")) keys.shift |= kAltMask;
        }
        return keys;
    }

    Expected Expectation() {
        Expected expected;
        if (TakeWord("=")) {
            expected.compare = Compare::Equal;
        } else if (TakeWord("!=")) {
            expected.compare = Compare::NotEqual;
        } else if (TakeWord("contains")) {
            expected.compare = Compare::Contains;
        }
        expected.value = Text("the expected value");
        End();
        return expected;
    }

    void End() {
        if (!Done())
            throw ScenarioError("unexpected \"" + tokens_[at_].text + "\" at the end of the line");
    }

  private:
    static bool IsModifier(const Token& token) {
        if (token.quoted) return false;
        for (const char* w : {"left", "right", "middle", "shift", "ctrl", "alt"})
            if (SameText(token.text, w)) return true;
        return false;
    }
    float Coordinate() {
        const Token token = Next("a coordinate");
        const auto value = Number(token.text);
        if (!value)
            throw ScenarioError("expected a number in map units, not \"" + token.text + "\"");
        return *value;
    }

    std::vector<Token> tokens_;
    size_t at_ = 0;
    const ScriptContext& context_;
};

using Act = std::function<void(ScenarioRun&)>;

Act ParseExpect(Args& a) {
    const std::string subject = a.Word("what to expect");
    if (SameText(subject, "status")) {
        const Expected e = a.Expectation();
        return [e](ScenarioRun& r) { r.ExpectStatus(e); };
    }
    if (SameText(subject, "box") || SameText(subject, "box.Text") ||
        SameText(subject, "box.Title")) {
        const std::string part = SameText(subject, "box.Title") ? "Title" : "Text";
        const Expected e = a.Expectation();
        return [part, e](ScenarioRun& r) { r.ExpectBox(part, e); };
    }
    if (SameText(subject, "file")) {
        const std::string path = a.Path("file");
        if (a.TakeWord("same-as")) {
            const std::string reference = a.Path("file to compare with");
            a.End();
            return [path, reference](ScenarioRun& r) { r.ExpectFileSame(path, reference); };
        }
        const Expected e = a.Expectation();
        return [path, e](ScenarioRun& r) { r.ExpectFileText(path, e); };
    }
    if (SameText(subject, "doc")) {
        const std::string word = a.Word("a document entry");
        std::string field;
        std::vector<int> indexes;
        if (!SplitCall(word, field, indexes))
            throw ScenarioError("\"" + word + "\" is not a document entry such as WPLat(0,1)");
        const Expected e = a.Expectation();
        return [field, indexes, e](ScenarioRun& r) { r.ExpectDoc(field, indexes, e); };
    }
    // [Form.]control[(i)].Property[(args)]
    const size_t dot = subject.rfind('.');
    PropertyName property;
    if (dot == std::string::npos ||
        !SplitCall(subject.substr(dot + 1), property.name, property.args))
        throw ScenarioError("expect what? status, box, file, doc, or CONTROL.Property as in " +
                            std::string("lstPoints.ListCount"));
    std::vector<Token> head{{subject.substr(0, dot), false}};
    ScriptContext none;
    Args control(std::move(head), none);
    const ControlName name = control.Control();
    const Expected e = a.Expectation();
    return [name, property, e](ScenarioRun& r) { r.ExpectProperty(name, property, e); };
}

ControlName Menu(const char* name) {
    return ControlName{kMainWindow, name, -1};
}

struct Verb {
    const char* name;
    StepKind kind;
    Act (*parse)(Args&);
};

const Verb kVerbs[] = {
    {"new", StepKind::Action,
     [](Args& a) -> Act {
         a.End();
         return [](ScenarioRun& r) { r.Menu(Menu("mnuNew")); };
     }},
    {"open", StepKind::Action,
     [](Args& a) -> Act {
         const std::string path = a.Path("file to open");
         a.End();
         return [path](ScenarioRun& r) { r.MenuWithFile(Menu("mnuOpen"), path); };
     }},
    {"save", StepKind::Action,
     [](Args& a) -> Act {
         a.End();
         return [](ScenarioRun& r) { r.Menu(Menu("mnuSave")); };
     }},
    {"saveas", StepKind::Action,
     [](Args& a) -> Act {
         const std::string path = a.Path("file to save as");
         a.End();
         return [path](ScenarioRun& r) { r.MenuWithFile(Menu("mnuSaveAs"), path); };
     }},
    {"menu", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName entry = a.Control(kMainWindow);
         a.End();
         return [entry](ScenarioRun& r) { r.Menu(entry); };
     }},
    {"tab", StepKind::Action,
     [](Args& a) -> Act {
         const Token token = a.Next("a tab (its number from 0, or its caption)");
         a.End();
         const auto page = token.quoted ? std::nullopt : WholeNumber(token.text);
         const int number = page ? *page : -1;
         const std::string caption = page ? std::string() : token.text;
         return [number, caption](ScenarioRun& r) { r.Tab(number, caption); };
     }},
    {"click", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         a.End();
         return [name](ScenarioRun& r) { r.Click(name); };
     }},
    {"dblclick", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         std::optional<Spot> row;
         if (!a.Done()) row = a.Row();
         a.End();
         return [name, row](ScenarioRun& r) { r.DoubleClick(name, row); };
     }},
    {"check", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         bool on = true;
         if (a.TakeWord("off")) {
             on = false;
         } else if (!a.TakeWord("on")) {
             throw ScenarioError("expected on or off after the check box");
         }
         a.End();
         return [name, on](ScenarioRun& r) { r.Check(name, on); };
     }},
    {"select", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const Spot row = a.Row();
         const Modifiers keys = a.Keys();
         return [name, row, keys](ScenarioRun& r) { r.Select(name, row, keys); };
     }},
    {"cell", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const int row = a.Int("a row");
         const int col = a.Int("a column");
         a.End();
         return [name, row, col](ScenarioRun& r) { r.Cell(name, row, col); };
     }},
    {"pick", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const Spot row = a.Row();
         a.End();
         return [name, row](ScenarioRun& r) { r.Pick(name, row); };
     }},
    {"highlight", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const Spot row = a.Row();
         a.End();
         return [name, row](ScenarioRun& r) { r.Highlight(name, row); };
     }},
    {"dismiss", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         a.End();
         return [name](ScenarioRun& r) { r.Dismiss(name); };
     }},
    {"type", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const std::string text = a.Text("the text to type");
         a.End();
         return [name, text](ScenarioRun& r) { r.Type(name, text, true); };
     }},
    {"append", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const std::string text = a.Text("the text to type");
         a.End();
         return [name, text](ScenarioRun& r) { r.Type(name, text, false); };
     }},
    {"key", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const std::string key = a.Word("a key name");
         const int code = KeyCodeOfName(key);
         if (code == 0) throw ScenarioError("no key is called \"" + key + "\"");
         const Modifiers keys = a.Keys();
         return [name, code, keys](ScenarioRun& r) { r.Key(name, code, keys); };
     }},
    {"press", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const Spot at = a.Spots(1)[0];
         const Modifiers keys = a.Keys();
         return [name, at, keys](ScenarioRun& r) {
             r.Pointer(ScenarioRun::Mouse::Press, name, at, keys);
         };
     }},
    {"move", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const Spot at = a.Spots(1)[0];
         const Modifiers keys = a.Keys();
         return [name, at, keys](ScenarioRun& r) {
             r.Pointer(ScenarioRun::Mouse::Move, name, at, keys);
         };
     }},
    {"release", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const Spot at = a.Spots(1)[0];
         const Modifiers keys = a.Keys();
         return [name, at, keys](ScenarioRun& r) {
             r.Pointer(ScenarioRun::Mouse::Release, name, at, keys);
         };
     }},
    {"drag", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const std::vector<Spot> spots = a.Spots(2);
         const Modifiers keys = a.Keys();
         return [name, spots, keys](ScenarioRun& r) { r.Drag(name, spots[0], spots[1], keys); };
     }},
    {"up", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const int times = a.Count();
         a.End();
         return [name, times](ScenarioRun& r) { r.Spin(name, true, times); };
     }},
    {"down", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const int times = a.Count();
         a.End();
         return [name, times](ScenarioRun& r) { r.Spin(name, false, times); };
     }},
    {"tick", StepKind::Action,
     [](Args& a) -> Act {
         const ControlName name = a.Control();
         const int times = a.Count();
         a.End();
         return [name, times](ScenarioRun& r) { r.Tick(name, times); };
     }},
    {"close", StepKind::Action,
     [](Args& a) -> Act {
         const std::string form = a.Word("a window such as frmAircraft");
         a.End();
         return [form](ScenarioRun& r) { r.Close(form); };
     }},
    {"answer", StepKind::Answer,
     [](Args& a) -> Act {
         const std::string answer = a.Word("yes, no, ok or cancel");
         bool known = false;
         for (const char* w : {"yes", "no", "ok", "cancel"})
             known = known || SameText(answer, w);
         if (!known) throw ScenarioError("a box is answered yes, no, ok or cancel");
         a.End();
         return [answer](ScenarioRun& r) { r.Answer(answer); };
     }},
    {"input", StepKind::Answer,
     [](Args& a) -> Act {
         const std::string text = a.Text("the text for the input box");
         a.End();
         return [text](ScenarioRun& r) { r.Input(text); };
     }},
    {"file", StepKind::Answer,
     [](Args& a) -> Act {
         const bool cancel = a.TakeWord("cancel");
         const std::string path = cancel ? std::string() : a.Path("file for the file dialog");
         a.End();
         return [path, cancel](ScenarioRun& r) { r.File(path, cancel); };
     }},
    {"expect", StepKind::Expectation, ParseExpect},
};

}  // namespace

Script ParseScenario(std::string_view text, const ScriptContext& context) {
    Script script;
    int number = 0;
    size_t start = 0;
    while (start <= text.size()) {
        size_t end = text.find('\n', start);
        if (end == std::string_view::npos) end = text.size();
        const std::string_view line = text.substr(start, end - start);
        start = end + 1;
        ++number;
        try {
            std::vector<Token> tokens = SplitLine(line, context);
            if (tokens.empty()) continue;
            const Token verb = tokens.front();
            tokens.erase(tokens.begin());
            const Verb* found = nullptr;
            for (const Verb& v : kVerbs)
                if (!verb.quoted && SameText(verb.text, v.name)) found = &v;
            if (!found) throw ScenarioError("unknown action \"" + verb.text + "\"");
            Args args(std::move(tokens), context);
            script.steps.push_back(Step{number, found->kind, found->parse(args)});
        } catch (const ScenarioError& e) {
            script.errors.push_back({number, e.what()});
        }
        if (end == text.size()) break;
    }
    return script;
}

}  // namespace tarvex::scenario
