// Failure: a run-time failure, known by its number. It is thrown by value and caught by value or
// by reference; everything else that is thrown is a bug of the program and not a Failure.
#pragma once

namespace magpie {

struct Failure {
    int number = 0;

    // A short English text for logs and test output, never for the user. Lives forever.
    const char* what() const noexcept;

    friend bool operator==(const Failure&, const Failure&) = default;
};

// The numbers, so that a throw reads as a sentence: throw Failure{failure::overflow}.
namespace failure {
inline constexpr int invalidCall = 5;
inline constexpr int overflow = 6;
inline constexpr int subscript = 9;
inline constexpr int typeMismatch = 13;
inline constexpr int badFileName = 52;
inline constexpr int fileNotFound = 53;
inline constexpr int fileExists = 58;
inline constexpr int diskFull = 61;
inline constexpr int inputPastEnd = 62;
inline constexpr int permissionDenied = 70;
inline constexpr int pathAccess = 75;
inline constexpr int pathNotFound = 76;
inline constexpr int objectNotSet = 91;
inline constexpr int invalidPattern = 93;
inline constexpr int conversationUnanswered = 282;
inline constexpr int conversationRefused = 285;
inline constexpr int conversationTimedOut = 286;
inline constexpr int noSuchControl = 340;
inline constexpr int cannotCreateObject = 429;
inline constexpr int noSuchFunction = 453;
inline constexpr int duplicateKey = 457;
inline constexpr int invalidPicture = 481;
}  // namespace failure

}  // namespace magpie
