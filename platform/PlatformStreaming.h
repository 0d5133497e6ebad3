/// @file
/// The text form of a component: a line with its class and name, its stored published
/// properties that differ from their defaults, one per line in the order of publication,
/// and a closing `end`:
///
/// ~~~{.txt}
/// TKorDescStats Stats
///   DecimalPlaces = 6
///   Items = ["1.5", "2"]
/// end
/// ~~~
///
/// Integers are decimal, floats the shortest text that reads back to the same value,
/// Booleans `true` or `false`, texts double-quoted with backslash escapes for a quote, a
/// backslash (`\\`), a line end (`\n`) and a tab (`\t`), string lists a bracketed,
/// comma-separated list of texts.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformComponents.h>

#include <string>
#include <string_view>

KORNUM_EXPORT_BEGIN
namespace Platform {

/// Raised for a text form that cannot be read; the message says what and, for a property
/// line, where ("Line 3: a number was expected").
class EReadError : public Exception {
public:
    /// An exception carrying `message`.
    using Exception::Exception;
};

/// The text form of `Component`, ending with a line end. The class line names the
/// component when its name is not empty.
std::string WriteComponentText(const TComponent& Component);

/// Reads a text form into `Component`: checks the class, sets the named properties in the
/// order they appear (the class line sets the component's name, empty when it gives
/// none), then calls `TComponent::Loaded`. Blanks around lines and trailing empty lines
/// are ignored. Failures, raised as `Platform::EReadError`: a text without a class line
/// and a closing `end`; a class other than the component's; a line without `=`; a name
/// that is not a stored property; a value that is not of the property's type, or text
/// after it. A failure of a property's own setter (a colour or font text that does not
/// convert raises `Platform::EConvertError`) passes through. Properties set before a
/// failure keep their new values; the loading state is cleared either way.
void ReadComponentText(TComponent& Component, std::string_view Text);

}  // namespace Platform
KORNUM_EXPORT_END
