// Any bytes as a pattern, and behind the first NUL a text: both ways to match must agree, on the
// answer or on the failure, and come back.
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "platform/runtime/failure.h"
#include "platform/runtime/pattern.h"

namespace {

// No answer means that the pattern is invalid. Any other failure is left to crash.
template <class Match>
std::optional<bool> answerOf(Match match) {
    try {
        return match();
    } catch (const magpie::Failure& failed) {
        if (failed.number != magpie::failure::invalidPattern) throw;
        return std::nullopt;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t nul = input.find('\0');
    const std::string_view pattern = input.substr(0, nul);
    const std::string_view text =
        nul == std::string_view::npos ? std::string_view() : input.substr(nul + 1);

    const auto once = answerOf([&] { return magpie::matchesPattern(text, pattern); });
    const auto compiled = answerOf([&] { return magpie::Pattern(pattern).matches(text); });
    if (once != compiled) std::abort();
    return 0;
}
