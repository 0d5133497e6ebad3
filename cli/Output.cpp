#include "Output.h"

#include <kornum/PlatformGraphics.h>

#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace KornumCli {

std::string Quoted(std::string_view text) {
    constexpr std::size_t Shown = 40;
    std::string out = "'";
    std::size_t characters = 0;
    while (!text.empty()) {
        if (characters == Shown) {
            out += "...";
            break;
        }
        const std::size_t length = Platform::Utf8CharLength(text);
        const unsigned char c = static_cast<unsigned char>(text[0]);
        if (length == 0 || c < 0x20 || c == 0x7F) {
            static constexpr char Hex[] = "0123456789abcdef";
            out += "\\x";
            out += Hex[c >> 4];
            out += Hex[c & 15];
            text.remove_prefix(1);
        } else {
            out.append(text.substr(0, length));
            text.remove_prefix(length);
        }
        ++characters;
    }
    return out + "'";
}

Output::~Output() {
    if (!finished_ && !buffer_.empty()) {
        try {
            Flush();
        } catch (const WriteError&) {
            // Only reached while another failure unwinds; that one is reported.
        }
    }
}

void Output::Write(std::string_view text) {
    written_ += text.size();
    if (written_ > limit_) throw OutputLimit("the output limit is reached");
    buffer_.append(text);
    if (buffer_.size() >= (std::size_t(1) << 16)) Flush();
}

void Output::Flush() {
    std::size_t done = 0;
    while (done < buffer_.size()) {
        const ssize_t wrote = ::write(descriptor_, buffer_.data() + done, buffer_.size() - done);
        if (wrote < 0) {
            if (errno == EINTR) continue;
            buffer_.clear();
            throw WriteError(std::strerror(errno));
        }
        done += std::size_t(wrote);
    }
    buffer_.clear();
}

void Output::Finish() {
    if (finished_) return;
    finished_ = true;
    Flush();
    if (closeAtFinish_ && ::close(descriptor_) != 0 && errno != EINTR) throw WriteError(std::strerror(errno));
}

}  // namespace KornumCli
