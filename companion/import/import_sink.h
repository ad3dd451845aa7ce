// Import sink: whom an import tells of what it finds. Texts are ready to be kept: in the program's
// code page, without control characters.
#pragma once

#include <string>

namespace magpie {

class ImportSink {
public:
    virtual ~ImportSink() = default;

    // A group begins. False when it can't be taken: there is no more room then.
    virtual bool NewGroup(const std::string& name) = 0;
    // A link of the group that began last. False as above.
    virtual bool BungURL(const std::string& title, const std::string& url) = 0;
    // The group that began last is the one for links that lie in no folder.
    virtual void storeLastRootOwner() = 0;
};

}  // namespace magpie
