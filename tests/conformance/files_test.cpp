#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "platform/api/kernel32.h"
#include "tests/conformance/test_folder.h"

using namespace win;

namespace {

HANDLE open(const std::string& path, DWORD access, DWORD share = FILE_SHARE_READ,
            DWORD disposition = OPEN_EXISTING, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
    return CreateFileA(path.c_str(), access, share, nullptr, disposition, attributes, nullptr);
}

HANDLE create(const std::string& path, DWORD attributes = FILE_ATTRIBUTE_NORMAL) {
    return open(path, GENERIC_WRITE, 0, CREATE_ALWAYS, attributes);
}

// Closes what opened and answers the error number of the opening, 0 for none.
DWORD errorOf(HANDLE file) {
    if (file == INVALID_HANDLE_VALUE) return GetLastError();
    CloseHandle(file);
    return 0;
}

DWORD write(HANDLE file, std::string_view text) {
    DWORD written = 99;
    EXPECT_TRUE(WriteFile(file, text, &written, nullptr));
    return written;
}

std::string read(HANDLE file, std::size_t most = 100) {
    std::string bytes(most, '#');
    DWORD count = 99;
    EXPECT_TRUE(ReadFile(file, bytes, &count, nullptr));
    return bytes.substr(0, count);
}

void put(const std::string& path, std::string_view text) {
    HANDLE file = create(path);
    EXPECT_EQ(write(file, text), text.size());
    CloseHandle(file);
}

std::string contents(const std::string& path) {
    HANDLE file = open(path, GENERIC_READ);
    std::string text = read(file, 1000);
    CloseHandle(file);
    return text;
}

class Files : public testing::Test {
protected:
    std::string path(const std::string& name = {}) const { return folder.path(name); }

    // What MoveFileA answers as an error number, 0 for success.
    DWORD move(const std::string& from, const std::string& to) const {
        return MoveFileA(path(from).c_str(), path(to).c_str()) ? 0 : GetLastError();
    }
    DWORD remove(const std::string& name) const {
        return DeleteFileA(path(name).c_str()) ? 0 : GetLastError();
    }

    TestFolder folder;
};

TEST_F(Files, AnOpenedFileGivesBackWhatWasWritten) {
    put(path("a.txt"), "one\r\ntwo");
    HANDLE file = open(path("a.txt"), GENERIC_READ);
    EXPECT_EQ(read(file, 4), "one\r");
    EXPECT_EQ(read(file), "\ntwo");
    EXPECT_EQ(read(file), "");
    EXPECT_EQ(read(file, 0), "");
    CloseHandle(file);
}

TEST_F(Files, CreatingTellsWhetherTheFileWasThere) {
    SetLastError(77);
    HANDLE file = create(path("a.txt"));
    EXPECT_EQ(GetLastError(), ERROR_SUCCESS);
    CloseHandle(file);
    file = create(path("a.txt"));
    EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS);
    CloseHandle(file);
    SetLastError(77);
    file = open(path("a.txt"), GENERIC_READ);
    EXPECT_EQ(GetLastError(), ERROR_SUCCESS);
    CloseHandle(file);
}

TEST_F(Files, CreatingAgainEmptiesTheFile) {
    put(path("a.txt"), "a long text");
    put(path("a.txt"), "short");
    EXPECT_EQ(contents(path("a.txt")), "short");
}

TEST_F(Files, WritingIntoAnOpenedFileReplacesFromItsBeginning) {
    put(path("a.txt"), "hello");
    HANDLE file = open(path("a.txt"), GENERIC_READ | GENERIC_WRITE, 0);
    EXPECT_EQ(write(file, "HE"), 2u);
    EXPECT_EQ(read(file), "llo");
    EXPECT_EQ(write(file, " you"), 4u);
    EXPECT_EQ(write(file, ""), 0u);
    CloseHandle(file);
    EXPECT_EQ(contents(path("a.txt")), "HEllo you");
}

TEST_F(Files, EveryByteIsKept) {
    std::string bytes;
    for (int i = 0; i < 512; ++i) bytes += static_cast<char>(i);
    put(path("a.bin"), bytes);
    EXPECT_EQ(contents(path("a.bin")), bytes);
}

TEST_F(Files, AMissingFileAndAMissingFolderAreToldApart) {
    EXPECT_EQ(errorOf(open(path("none.txt"), GENERIC_READ)), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(errorOf(open(path("none\\a.txt"), GENERIC_READ)), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(errorOf(create(path("none\\a.txt"))), ERROR_PATH_NOT_FOUND);
    put(path("a.txt"), "");
    EXPECT_EQ(errorOf(open(path("a.txt\\b.txt"), GENERIC_READ)), ERROR_PATH_NOT_FOUND);
}

TEST_F(Files, AFolderCannotBeOpened) {
    EXPECT_EQ(errorOf(open(path(), GENERIC_READ)), ERROR_ACCESS_DENIED);
    EXPECT_EQ(errorOf(open(path() + "\\", GENERIC_READ)), ERROR_ACCESS_DENIED);
    EXPECT_EQ(errorOf(open(path(), GENERIC_WRITE, 0)), ERROR_ACCESS_DENIED);
    EXPECT_EQ(errorOf(create(path())), ERROR_ACCESS_DENIED);
    EXPECT_EQ(errorOf(open("C:\\", GENERIC_READ)), ERROR_ACCESS_DENIED);
}

TEST_F(Files, ANameWithAForbiddenCharacterIsInvalid) {
    for (const std::string name : {"a<b", "a>b", "a|b", "a\"b", "a*b", "a?b"}) {
        EXPECT_EQ(errorOf(open(path(name), GENERIC_READ)), ERROR_INVALID_NAME) << name;
        EXPECT_EQ(errorOf(create(path(name))), ERROR_INVALID_NAME) << name;
    }
}

TEST_F(Files, ADriveInTheMiddleOfAPathIsNoFolder) {
    // The system's versions differ in the number.
    EXPECT_THAT(errorOf(open(path("C:\\a.txt"), GENERIC_READ)),
                testing::AnyOf(ERROR_PATH_NOT_FOUND, ERROR_INVALID_NAME));
}

TEST_F(Files, AnEmptyPathIsNotFound) {
    EXPECT_EQ(errorOf(open("", GENERIC_READ)), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(GetFileAttributesA(""), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(GetLastError(), ERROR_PATH_NOT_FOUND);
    EXPECT_FALSE(DeleteFileA(""));
    EXPECT_EQ(GetLastError(), ERROR_PATH_NOT_FOUND);
    put(path("a.txt"), "");
    EXPECT_FALSE(MoveFileA(path("a.txt").c_str(), ""));
    EXPECT_EQ(GetLastError(), ERROR_PATH_NOT_FOUND);
    EXPECT_FALSE(MoveFileA("", path("a.txt").c_str()));
    EXPECT_EQ(GetLastError(), ERROR_PATH_NOT_FOUND);
}

TEST_F(Files, AFileIsFoundHoweverItsPathIsSpelled) {
    folder.makeFolder("sub");
    put(path("a.txt"), "text");
    std::string slashes = path("a.txt");
    std::ranges::replace(slashes, '\\', '/');
    for (const std::string& spelled :
         {path("A.TXT"), path("a.txt."), path("a.txt "), path("\\a.txt"), path(".\\a.txt"),
          path("sub\\..\\a.txt"), path("none\\..\\a.txt"), slashes}) {
        EXPECT_EQ(contents(spelled), "text") << spelled;
    }
}

TEST_F(Files, OneDotAtTheEndOfAFolderOnTheWayIsDropped) {
    folder.makeFolder("etc");
    put(path("etc\\a.txt"), "text");
    EXPECT_EQ(contents(path("etc.\\a.txt")), "text");
    EXPECT_EQ(errorOf(open(path("etc..\\a.txt"), GENERIC_READ)), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(errorOf(open(path("etc \\a.txt"), GENERIC_READ)), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(errorOf(create(path("etc \\b.txt"))), ERROR_PATH_NOT_FOUND);
}

TEST_F(Files, DotsAndBlanksAtTheEndOfANewFoldersNameAreDropped) {
    for (const std::string name : {"one.", "two ", "three. .", "four..."})
        EXPECT_TRUE(CreateDirectoryA(path(name).c_str(), nullptr)) << name;
    for (const std::string name : {"one", "two", "three", "four"})
        EXPECT_EQ(GetFileAttributesA(path(name).c_str()), FILE_ATTRIBUTE_DIRECTORY) << name;
    EXPECT_FALSE(CreateDirectoryA(path("one ").c_str(), nullptr));
    EXPECT_EQ(GetLastError(), ERROR_ALREADY_EXISTS);
}

// The system's versions differ in the number.
TEST_F(Files, APathThatIsTooLongIsNoPath) {
    const auto tooLong = testing::AnyOf(ERROR_FILENAME_EXCED_RANGE, ERROR_PATH_NOT_FOUND);
    const std::string name = path(std::string(300, 'x'));
    EXPECT_THAT(errorOf(create(name)), tooLong);
    EXPECT_THAT(errorOf(open(name, GENERIC_READ)), tooLong);
    EXPECT_FALSE(CreateDirectoryA(name.c_str(), nullptr));
    EXPECT_THAT(GetLastError(), tooLong);
    EXPECT_EQ(GetFileAttributesA(name.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_THAT(GetLastError(), tooLong);
    EXPECT_FALSE(DeleteFileA(name.c_str()));
    EXPECT_THAT(GetLastError(), tooLong);
    EXPECT_FALSE(MoveFileA(name.c_str(), path("a.txt").c_str()));
    EXPECT_THAT(GetLastError(), tooLong);
}

TEST_F(Files, TheRootsParentIsTheRoot) {
    EXPECT_EQ(GetFileAttributesA("C:\\..\\..\\"), GetFileAttributesA("C:\\"));
}

TEST_F(Files, AReadOnlyFileCanBeReadButNotWritten) {
    HANDLE file = create(path("a.txt"), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(write(file, "text"), 4u);
    CloseHandle(file);
    EXPECT_EQ(contents(path("a.txt")), "text");
    const DWORD expected = writesReadOnlyFiles() ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_WRITE, 0)), expected);
    EXPECT_EQ(errorOf(create(path("a.txt"), FILE_ATTRIBUTE_READONLY)), expected);
}

TEST_F(Files, AReadOnlyFileCanBeRenamedButNotDeleted) {
    CloseHandle(create(path("a.txt"), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(remove("a.txt"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(move("a.txt", "b.txt"), ERROR_SUCCESS);
    EXPECT_TRUE(GetFileAttributesA(path("b.txt").c_str()) & FILE_ATTRIBUTE_READONLY);
}

TEST_F(Files, AttributesTellFilesFromFolders) {
    put(path("a.txt"), "");
    EXPECT_EQ(GetFileAttributesA(path("a.txt").c_str()), 0x20u);
    EXPECT_EQ(GetFileAttributesA(path().c_str()), FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_EQ(GetFileAttributesA((path() + "\\").c_str()), FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_EQ(GetFileAttributesA("C:\\") & FILE_ATTRIBUTE_DIRECTORY, FILE_ATTRIBUTE_DIRECTORY);
}

TEST_F(Files, AttributesOfWhatIsNotThereAreAnError) {
    const auto error = [this](const std::string& name) {
        EXPECT_EQ(GetFileAttributesA(path(name).c_str()), INVALID_FILE_ATTRIBUTES);
        return GetLastError();
    };
    EXPECT_EQ(error("none"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(error("none\\a.txt"), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(error("a*"), ERROR_INVALID_NAME);
}

TEST_F(Files, AFileOpenForWritingIsClosedToEveryoneElse) {
    HANDLE file = create(path("a.txt"));
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_READ)), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE)),
              ERROR_SHARING_VIOLATION);
    EXPECT_EQ(errorOf(create(path("a.txt"))), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(remove("a.txt"), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(move("a.txt", "b.txt"), ERROR_SHARING_VIOLATION);
    CloseHandle(file);
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_READ)), ERROR_SUCCESS);
}

TEST_F(Files, AFileOpenForReadingCanBeReadByOthersThatAllowIt) {
    put(path("a.txt"), "");
    HANDLE file = open(path("a.txt"), GENERIC_READ);
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_READ)), ERROR_SUCCESS);
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_READ, 0)), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_WRITE)), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(remove("a.txt"), ERROR_SHARING_VIOLATION);
    CloseHandle(file);
}

TEST_F(Files, AWriterThatSharesIsReadByThoseWhoShareBack) {
    put(path("a.txt"), "text");
    HANDLE file = open(path("a.txt"), GENERIC_WRITE, FILE_SHARE_READ);
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_READ)), ERROR_SHARING_VIOLATION);
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE)),
              ERROR_SUCCESS);
    CloseHandle(file);
}

TEST_F(Files, AHandleServesOnlyWhatItWasOpenedFor) {
    put(path("a.txt"), "text");
    std::array<char, 10> buffer{};
    DWORD count = 99;
    HANDLE file = open(path("a.txt"), GENERIC_READ);
    EXPECT_FALSE(WriteFile(file, buffer, &count, nullptr));
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    EXPECT_EQ(count, 0u);
    CloseHandle(file);
    file = open(path("a.txt"), GENERIC_WRITE);
    count = 99;
    EXPECT_FALSE(ReadFile(file, buffer, &count, nullptr));
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    EXPECT_EQ(count, 0u);
    CloseHandle(file);
}

TEST_F(Files, AClosedHandleServesNothing) {
    HANDLE file = create(path("a.txt"));
    EXPECT_TRUE(CloseHandle(file));
    EXPECT_FALSE(CloseHandle(file));
    EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
    std::array<char, 10> buffer{};
    DWORD count = 99;
    for (HANDLE dead : {file, HANDLE(nullptr), INVALID_HANDLE_VALUE}) {
        SetLastError(0);
        EXPECT_FALSE(ReadFile(dead, buffer, &count, nullptr));
        EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
        SetLastError(0);
        EXPECT_FALSE(WriteFile(dead, buffer, &count, nullptr));
        EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
    }
}

TEST_F(Files, AMovedFileIsElsewhere) {
    folder.makeFolder("sub");
    put(path("a.txt"), "text");
    EXPECT_EQ(move("a.txt", "sub\\b.txt"), ERROR_SUCCESS);
    EXPECT_EQ(contents(path("sub\\b.txt")), "text");
    EXPECT_EQ(errorOf(open(path("a.txt"), GENERIC_READ)), ERROR_FILE_NOT_FOUND);
}

TEST_F(Files, MovingNeverReplaces) {
    folder.makeFolder("sub");
    put(path("a.txt"), "a");
    put(path("b.txt"), "b");
    EXPECT_EQ(move("a.txt", "b.txt"), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(move("a.txt", "sub"), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(contents(path("a.txt")), "a");
    EXPECT_EQ(contents(path("b.txt")), "b");
}

TEST_F(Files, MovingOntoItselfChangesAtMostTheCapitals) {
    put(path("a.txt"), "a");
    EXPECT_EQ(move("a.txt", "a.txt"), ERROR_SUCCESS);
    EXPECT_EQ(move("a.txt", "A.TXT"), ERROR_SUCCESS);
    EXPECT_EQ(contents(path("a.txt")), "a");
}

TEST_F(Files, MovingWhatOrWhereThereIsNothingFails) {
    put(path("a.txt"), "a");
    EXPECT_EQ(move("none.txt", "b.txt"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(move("none.txt", "a.txt"), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(move("none\\a.txt", "b.txt"), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(move("a.txt", "none\\a.txt"), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(move("a.txt", "b*.txt"), ERROR_INVALID_NAME);
    EXPECT_EQ(move("b*.txt", "b.txt"), ERROR_INVALID_NAME);
}

TEST_F(Files, ADeletedFileIsGone) {
    put(path("a.txt"), "a");
    EXPECT_EQ(remove("a.txt"), ERROR_SUCCESS);
    EXPECT_EQ(remove("a.txt"), ERROR_FILE_NOT_FOUND);
}

TEST_F(Files, DeletingWhatIsNoFileFails) {
    folder.makeFolder("sub");
    EXPECT_EQ(remove("none\\a.txt"), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(remove("sub"), ERROR_ACCESS_DENIED);
    EXPECT_EQ(remove("a*"), ERROR_INVALID_NAME);
}

TEST_F(Files, AFolderIsMadeInAFolder) {
    EXPECT_TRUE(CreateDirectoryA(path("new").c_str(), nullptr));
    EXPECT_EQ(GetFileAttributesA(path("new").c_str()), FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_TRUE(CreateDirectoryA(path("new\\deeper").c_str(), nullptr));
    put(path("new\\deeper\\a.txt"), "a");
    EXPECT_EQ(contents(path("new\\deeper\\a.txt")), "a");
}

TEST_F(Files, AFolderIsNotMadeOverAnythingNorWithoutTheOneAbove) {
    const auto error = [](const std::string& made) {
        return CreateDirectoryA(made.c_str(), nullptr) ? 0 : GetLastError();
    };
    folder.makeFolder("new");
    put(path("a.txt"), "a");
    EXPECT_EQ(error(path("new")), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(error(path("a.txt")), ERROR_ALREADY_EXISTS);
    EXPECT_EQ(error(path("none\\deeper")), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(error(path("what?")), ERROR_INVALID_NAME);
}

TEST_F(Files, ALeadingBackslashIsTheRootOfTheDriveInUse) {
    EXPECT_EQ(errorOf(open("\\no file of this name", GENERIC_READ)), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(errorOf(open("\\no folder of this name\\a", GENERIC_READ)), ERROR_PATH_NOT_FOUND);
    EXPECT_EQ(GetFileAttributesA("\\") & FILE_ATTRIBUTE_DIRECTORY, FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace
