#include <kornum/Kornummsgs.h>

#include <cstdio>
#include <mutex>

namespace Kornummsgs {
namespace {

void WriteToStandardError(const std::string& text) {
    std::fprintf(stderr, "%s\n", text.c_str());
    std::fflush(stderr);
}

std::mutex handlerLock;
TErrorMsgHandler& InstalledHandler() {
    static TErrorMsgHandler handler = WriteToStandardError;
    return handler;
}

}  // namespace

void ErrorMsg(const std::string& Text) {
    TErrorMsgHandler handler;
    {
        std::lock_guard guard(handlerLock);
        handler = InstalledHandler();
    }
    handler(Text);
}

TErrorMsgHandler SetErrorMsgHandler(TErrorMsgHandler Handler) {
    std::lock_guard guard(handlerLock);
    TErrorMsgHandler previous = std::move(InstalledHandler());
    InstalledHandler() = Handler ? std::move(Handler) : TErrorMsgHandler(WriteToStandardError);
    return previous;
}

}  // namespace Kornummsgs
