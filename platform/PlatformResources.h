/// @file
/// Named, replaceable message texts. Each identifier is a constant with a numeric id, its
/// name and an English default; `Platform::ResourceString::Text` returns the text of the
/// table in force, which an application may replace entry by entry or as a whole (for
/// another language) at run time.
#pragma once

#include <kornum/KornumExport.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

KORNUM_EXPORT_BEGIN
namespace Platform {

/// A message identifier: a constant naming one message, with its English default text.
/// The identifiers of the numeric routines are those of `Kornum_RS_Math`.
struct ResourceString {
    /// The numeric id, unique across the library.
    int Id;
    /// The identifier's name, as replacement tables refer to it (`"rsVectorIsEmpty"`).
    const char* Name;
    /// The English text, in force until an application replaces it.
    const char* DefaultText;

    /// The text in force: the replacement installed for this id, else `DefaultText`.
    /// Safe to call from several threads.
    std::string Text() const;
};

/// A replacement table: pairs of an identifier's name (`"rsVectorIsEmpty"`, ...) and the
/// text that replaces its default.
using ResourceTable = std::vector<std::pair<std::string, std::string>>;

/// Replaces the text of one identifier; the other replacements stay in force.
void SetResourceText(const ResourceString& resource, std::string text);

/// Installs a whole table: every identifier it names gets its text, every other one
/// returns to its default. Failures: a name that no registered identifier has raises
/// `Platform::Exception` ("Unknown message identifier 'NAME'") for the first such name,
/// before anything is changed.
void ReplaceResourceTable(const ResourceTable& table);

/// Returns every identifier to its default text.
void RestoreDefaultResources();

/// The identifier registered under `name`, or nullptr.
const ResourceString* FindResource(std::string_view name);

/// Makes `count` identifiers known by name, so that `ReplaceResourceTable` and
/// `FindResource` find them; each module registers its own list once, when its library
/// loads. A name already registered keeps its first identifier. Returns true, so that
/// the call can initialise a namespace-scope flag.
bool RegisterResources(const ResourceString* const* resources, std::size_t count);

}  // namespace Platform
KORNUM_EXPORT_END
