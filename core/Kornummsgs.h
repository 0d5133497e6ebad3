/// @file
/// Showing a message to the user instead of raising it, and the general message texts.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornum_RS_Math.h>

#include <functional>
#include <string>

/// The messages module: showing a message to the user instead of raising it
/// (`ErrorMsg`, through a replaceable handler), and the general message texts.
KORNUM_EXPORT_BEGIN
namespace Kornummsgs {

/// The text shown for a value that is not available (`Kornum_RS_Math::rsNA`).
using Kornum_RS_Math::rsNA;

/// Receives the texts that ErrorMsg shows.
using TErrorMsgHandler = std::function<void(const std::string& Text)>;

/// Shows Text to the user as an error message and returns. The default handler writes
/// the text and a line end to standard error. Safe to call from several threads; the
/// handler itself runs outside the library's lock.
void ErrorMsg(const std::string& Text);

/// Installs the handler that ErrorMsg calls (an empty one restores the default) and
/// returns the handler that was in force.
TErrorMsgHandler SetErrorMsgHandler(TErrorMsgHandler Handler);

}  // namespace Kornummsgs
KORNUM_EXPORT_END
