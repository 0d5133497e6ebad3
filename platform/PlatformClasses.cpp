#include <kornum/PlatformClasses.h>

namespace Platform {

void TPersistent::Assign(const TPersistent& Source) {
    throw EConvertError("Cannot assign a " + std::string(Source.ClassName()) + " to a " +
                        std::string(ClassName()));
}

std::int32_t TStrings::IndexOf(std::string_view S) const {
    for (std::int32_t i = 0; i < Count(); ++i)
        if ((*this)[i] == S) return i;
    return -1;
}

std::string TStrings::Text() const {
    std::string text;
    for (std::int32_t i = 0; i < Count(); ++i) {
        text += (*this)[i];
        text += '\n';
    }
    return text;
}

void TStrings::SetText(std::string_view S) {
    Clear();
    std::size_t start = 0;
    while (start < S.size()) {
        std::size_t end = S.find_first_of("\r\n", start);
        if (end == std::string_view::npos) end = S.size();
        Add(std::string(S.substr(start, end - start)));
        if (end < S.size() && S[end] == '\r' && end + 1 < S.size() && S[end + 1] == '\n') ++end;
        start = end + 1;
    }
}

void TStrings::Assign(const TPersistent& Source) {
    const auto* source = dynamic_cast<const TStrings*>(&Source);
    if (source == nullptr) return TPersistent::Assign(Source);
    if (source == this) return;
    Clear();
    for (std::int32_t i = 0; i < source->Count(); ++i) Add((*source)[i]);
}

void TStringList::CheckIndex(std::int32_t Index, std::int32_t last) const {
    if (Index < 0 || Index > last)
        throw EStringListError("List index out of bounds (" + std::to_string(Index) + ")");
}

const std::string& TStringList::operator[](std::int32_t Index) const {
    CheckIndex(Index, Count() - 1);
    return lines_[std::size_t(Index)];
}

void TStringList::Put(std::int32_t Index, std::string S) {
    CheckIndex(Index, Count() - 1);
    lines_[std::size_t(Index)] = std::move(S);
}

std::int32_t TStringList::Add(std::string S) {
    lines_.push_back(std::move(S));
    return Count() - 1;
}

void TStringList::Insert(std::int32_t Index, std::string S) {
    CheckIndex(Index, Count());
    lines_.insert(lines_.begin() + Index, std::move(S));
}

void TStringList::Delete(std::int32_t Index) {
    CheckIndex(Index, Count() - 1);
    lines_.erase(lines_.begin() + Index);
}

}  // namespace Platform
