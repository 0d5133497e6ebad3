// The text form of a component: its stored published properties that differ from their
// defaults, one per line, in the order of publication.
//
//   TKorDescStats Stats
//     DecimalPlaces = 6
//     Items = ["1.5", "2"]
//   end
//
// Integers are decimal, floats the shortest text that reads back to the same value,
// Booleans true or false, texts double-quoted with \" \\ \n \t escapes, string lists
// a bracketed, comma-separated list of texts.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformComponents.h>

#include <string>
#include <string_view>

namespace KORNUM_API Platform {

// Raised for a text form that cannot be read; the message says what and where.
class EReadError : public Exception {
public:
    using Exception::Exception;
};

// The text form of Component.
std::string WriteComponentText(const TComponent& Component);

// Reads a text form into Component: checks the class, sets the named properties in the
// order they appear (the name line sets the component's name), then calls Loaded.
// Raises EReadError for a malformed form, another class, an unknown or unstored
// property or a value of the wrong type; the loading state is cleared either way.
void ReadComponentText(TComponent& Component, std::string_view Text);

}  // namespace Platform
