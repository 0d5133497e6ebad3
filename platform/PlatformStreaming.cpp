#include <kornum/PlatformStreaming.h>

#include <charconv>
#include <cmath>

namespace Platform {
namespace {

std::string Quote(std::string_view text) {
    std::string quoted = "\"";
    for (char c : text) {
        switch (c) {
            case '"': quoted += "\\\""; break;
            case '\\': quoted += "\\\\"; break;
            case '\n': quoted += "\\n"; break;
            case '\t': quoted += "\\t"; break;
            default: quoted += c;
        }
    }
    return quoted + '"';
}

std::string FormatValue(const TPropertyValue& value) {
    struct Formatter {
        std::string operator()(std::int64_t n) const { return std::to_string(n); }
        std::string operator()(long double x) const {
            char text[64];
            return std::string(text, std::to_chars(text, text + sizeof text, x).ptr);
        }
        std::string operator()(bool b) const { return b ? "true" : "false"; }
        std::string operator()(const std::string& s) const { return Quote(s); }
        std::string operator()(const std::vector<std::string>& lines) const {
            std::string list = "[";
            for (std::size_t i = 0; i < lines.size(); ++i) list += (i ? ", " : "") + Quote(lines[i]);
            return list + "]";
        }
    };
    return std::visit(Formatter{}, value);
}

// Reads one line's value of a given type from its text.
class ValueReader {
public:
    ValueReader(std::string_view text, int line) : text_(text), line_(line) {}

    TPropertyValue Read(TPropertyType type) {
        TPropertyValue value;
        switch (type) {
            case TPropertyType::Integer: value = ReadNumber<std::int64_t>(); break;
            case TPropertyType::Float: value = ReadNumber<long double>(); break;
            case TPropertyType::Boolean: value = ReadBoolean(); break;
            case TPropertyType::Text: value = ReadQuoted(); break;
            case TPropertyType::Strings: value = ReadList(); break;
        }
        SkipBlanks();
        if (position_ != text_.size()) Fail("unexpected text after the value");
        return value;
    }

private:
    std::string_view text_;
    std::size_t position_ = 0;
    int line_;

    [[noreturn]] void Fail(const std::string& what) const {
        throw EReadError("Line " + std::to_string(line_) + ": " + what);
    }
    void SkipBlanks() {
        while (position_ < text_.size() && (text_[position_] == ' ' || text_[position_] == '\t'))
            ++position_;
    }
    bool Take(char c) {
        SkipBlanks();
        if (position_ < text_.size() && text_[position_] == c) {
            ++position_;
            return true;
        }
        return false;
    }
    template <class Number>
    Number ReadNumber() {
        SkipBlanks();
        Number number{};
        const char* first = text_.data() + position_;
        auto [end, error] = std::from_chars(first, text_.data() + text_.size(), number);
        if (error != std::errc() || end == first) Fail("a number was expected");
        position_ += std::size_t(end - first);
        return number;
    }
    bool ReadBoolean() {
        SkipBlanks();
        for (bool b : {true, false}) {
            const std::string_view word = b ? "true" : "false";
            if (text_.substr(position_, word.size()) == word) {
                position_ += word.size();
                return b;
            }
        }
        Fail("true or false was expected");
    }
    std::string ReadQuoted() {
        if (!Take('"')) Fail("a quoted text was expected");
        std::string text;
        while (position_ < text_.size() && text_[position_] != '"') {
            char c = text_[position_++];
            if (c == '\\') {
                if (position_ == text_.size()) break;
                const char escaped = text_[position_++];
                c = escaped == 'n' ? '\n' : escaped == 't' ? '\t' : escaped;
            }
            text += c;
        }
        if (!Take('"')) Fail("the text has no closing quote");
        return text;
    }
    std::vector<std::string> ReadList() {
        if (!Take('[')) Fail("a list in brackets was expected");
        std::vector<std::string> lines;
        if (Take(']')) return lines;
        do lines.push_back(ReadQuoted());
        while (Take(','));
        if (!Take(']')) Fail("the list has no closing bracket");
        return lines;
    }
};

std::string_view Trim(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

}  // namespace

std::string WriteComponentText(const TComponent& Component) {
    std::string text(Component.ClassName());
    if (!Component.Name().empty()) text += " " + Component.Name();
    text += '\n';
    for (const TPropertyInfo& property : Component.PublishedProperties()) {
        if (!property.Stored) continue;
        const TPropertyValue value = property.Get(Component);
        if (value == property.Default) continue;
        text += "  " + property.Name + " = " + FormatValue(value) + '\n';
    }
    return text + "end\n";
}

void ReadComponentText(TComponent& Component, std::string_view Text) {
    std::vector<std::string_view> lines;
    for (std::size_t start = 0; start <= Text.size();) {
        std::size_t end = Text.find('\n', start);
        if (end == std::string_view::npos) end = Text.size();
        lines.push_back(Trim(Text.substr(start, end - start)));
        start = end + 1;
    }
    while (!lines.empty() && lines.back().empty()) lines.pop_back();
    if (lines.size() < 2 || lines.back() != "end")
        throw EReadError("A component text starts with its class and ends with 'end'");

    const std::string_view header = lines.front();
    const std::string_view className = header.substr(0, header.find(' '));
    if (className != Component.ClassName())
        throw EReadError("The text holds a " + std::string(className) + ", not a " +
                         std::string(Component.ClassName()));
    const std::string_view name =
        className.size() < header.size() ? Trim(header.substr(className.size())) : "";

    Component.BeginLoading();
    try {
        Component.SetName(std::string(name));
        for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
            const int lineNumber = int(i) + 1;
            const std::string_view line = lines[i];
            const std::size_t equals = line.find('=');
            if (equals == std::string_view::npos)
                throw EReadError("Line " + std::to_string(lineNumber) + ": 'Name = value' expected");
            const std::string propertyName(Trim(line.substr(0, equals)));
            const TPropertyInfo* property = Component.FindProperty(propertyName);
            if (property == nullptr || !property->Stored)
                throw EReadError("Line " + std::to_string(lineNumber) + ": " +
                                 std::string(Component.ClassName()) + " has no stored property '" +
                                 propertyName + "'");
            property->Set(Component, ValueReader(line.substr(equals + 1), lineNumber).Read(property->Type));
        }
    } catch (...) {
        Component.TComponent::Loaded();  // leave the loading state, finish nothing
        throw;
    }
    Component.Loaded();
}

}  // namespace Platform
