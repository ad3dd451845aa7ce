#include "platform/runtime/failure.h"

namespace magpie {

const char* Failure::what() const noexcept {
    switch (number) {
        case failure::invalidCall: return "invalid call or argument";
        case failure::overflow: return "overflow";
        case failure::subscript: return "subscript out of range";
        case failure::typeMismatch: return "type mismatch";
        case failure::badFileName: return "bad file name or number";
        case failure::fileNotFound: return "file not found";
        case failure::fileExists: return "file already exists";
        case failure::diskFull: return "disk full";
        case failure::inputPastEnd: return "input past end of file";
        case failure::permissionDenied: return "permission denied";
        case failure::pathAccess: return "path or file access error";
        case failure::pathNotFound: return "path not found";
        case failure::objectNotSet: return "object not set";
        case failure::invalidPattern: return "invalid pattern";
        case failure::conversationUnanswered: return "no program answered the conversation";
        case failure::conversationRefused: return "the other program refused the request";
        case failure::conversationTimedOut: return "conversation timed out";
        case failure::noSuchControl: return "no such control";
        case failure::cannotCreateObject: return "cannot create object";
        case failure::noSuchFunction: return "no such function in the library";
        case failure::duplicateKey: return "key already in the collection";
        case failure::invalidPicture: return "invalid picture";
        default: return "unnamed failure";
    }
}

}  // namespace magpie
