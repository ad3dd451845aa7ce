#include "browser/dde_roads.h"

#include "core/state.h"
#include "platform/controls/message_loop.h"
#include "platform/runtime/failure.h"
#include "platform/runtime/split.h"
#include "platform/services/dde.h"

namespace magpie {

namespace {

constexpr std::size_t netscape = 1;

// The attempts at a conversation, each with the next browser.
class Attempts {
public:
    std::size_t browser() const { return browser_; }

    // False when there have been enough.
    bool goOn() {
        constexpr std::size_t lastBrowser = 2;
        constexpr int most = 3;
        browser_ = browser_ < lastBrowser ? browser_ + 1 : 0;
        return ++made_ < most;
    }

private:
    std::size_t browser_ = browserType.value();
    int made_ = 0;
};

const std::string& serviceOf(std::size_t browser) {
    if (browser >= ddeApps.size()) throw Failure{failure::subscript};
    return ddeApps[browser];
}

// The address goes as it stands. The window is a new one (0) or the one active last (-1); the
// number at the end is Netscape's.
std::string openItem(const std::string& url, bool newWindow, std::size_t browser) {
    std::string item = "\"";
    item.append(url).append(newWindow ? "\",,0" : "\",,-1");
    if (browser == netscape) item.append(",7");
    return item;
}

// Events may run when the browser has answered, and nowhere before.
std::string converse(std::size_t browser, const std::string& topic, const std::string& item) {
    std::string reply = ddeRequest(serviceOf(browser), topic, item);
    DoEvents();
    return reply;
}

std::string withoutEnds(std::string_view token) {
    if (token.size() < 2) throw Failure{failure::invalidCall};
    return std::string(token.substr(1, token.size() - 2));
}

}  // namespace

Delivery deliverByDde(const std::string& url, bool newWindow) {
    Attempts attempts;
    do {
        const std::size_t browser = attempts.browser();
        try {
            converse(browser, "WWW_OpenURL", openItem(url, newWindow, browser));
            return Delivery::done;
        } catch (const Failure& failed) {
            if (failed.number == failure::conversationTimedOut && browser == netscape)
                return Delivery::likely;
        }
    } while (attempts.goOn());
    return Delivery::failed;
}

std::optional<Page> readPageByDde() {
    Attempts attempts;
    do {
        try {
            return pageOf(converse(attempts.browser(), "WWW_GetWindowInfo", "-1"));
        } catch (const Failure&) {
            continue;  // with the next browser, if there is one more attempt
        }
    } while (attempts.goOn());
    return std::nullopt;
}

Page pageOf(std::string_view reply) {
    std::array<std::string_view, 2> tokens;
    if (splitInto(tokens, reply, ',') < tokens.size()) throw Failure{failure::subscript};
    return {withoutEnds(tokens[1]), withoutEnds(tokens[0])};
}

}  // namespace magpie
