#include "platform/memory/sort_order.h"

#include <string_view>
#include <utility>

#include "platform/memory/refuse.h"

namespace win::memory {
namespace {

// Signs before digits before letters, each in its place.
constexpr std::string_view order =
    " !\"#$%&()*,./:;?@[\\]^_`{|}~+<=>0123456789abcdefghijklmnopqrstuvwxyz";

// A text's weights, and apart from them the signs that weigh nothing at first.
std::pair<std::string, std::string> weigh(const std::string& text) {
    std::pair<std::string, std::string> found;
    for (char letter : text) {
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
        if (letter == '\'' || letter == '-') {
            found.second += letter;
            continue;
        }
        const std::size_t weight = order.find(letter);
        if (weight == std::string_view::npos) refuse("sorting of a text with a rare letter", text);
        found.first += static_cast<char>(weight);
    }
    return found;
}

}  // namespace

int compareAsListed(const std::string& left, const std::string& right) {
    const auto [weightsLeft, signsLeft] = weigh(left);
    const auto [weightsRight, signsRight] = weigh(right);
    const int byWeight = weightsLeft.compare(weightsRight);
    return byWeight != 0 ? byWeight : signsLeft.compare(signsRight);
}

}  // namespace win::memory
