// Named, replaceable message texts. Each identifier is a constant with a numeric id,
// its name and an English default; Text() returns the text of the table in force,
// which an application may replace entry by entry or as a whole (for another
// language) at run time.
#pragma once

#include <kornum/KornumExport.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace KORNUM_API Platform {

struct ResourceString {
    int Id;
    const char* Name;
    const char* DefaultText;

    // The text in force: the replacement installed for this id, else the default.
    std::string Text() const;
};

// One replacement text, keyed by the identifier's name (rsVectorIsEmpty, ...).
using ResourceTable = std::vector<std::pair<std::string, std::string>>;

// Replaces the text of one identifier.
void SetResourceText(const ResourceString& resource, std::string text);

// Installs a whole table: every identifier it names gets its text, every other one
// returns to its default. Throws Exception naming the first unknown identifier,
// before anything is changed.
void ReplaceResourceTable(const ResourceTable& table);

// Every identifier back to its default text.
void RestoreDefaultResources();

// The identifier registered under a name, or nullptr.
const ResourceString* FindResource(std::string_view name);

// Makes identifiers known by name; each module registers its own list once.
// Returns true so that it can initialise a namespace-scope flag.
bool RegisterResources(const ResourceString* const* resources, std::size_t count);

}  // namespace Platform
