// Cursors, icons, pictures, fonts, metrics.
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "platform/api/gdi32.h"
#include "platform/api/kernel32.h"
#include "platform/api/user32.h"
#include "tests/conformance/test_folder.h"

using namespace win;

namespace {

constexpr WORD applicationIcon = 32512;

TEST(Resources, TheSystemsCursorsAreThere) {
    for (WORD number : {IDC_ARROW_NUMBER, IDC_WAIT_NUMBER, IDC_SIZEALL_NUMBER}) {
        HCURSOR cursor = LoadCursorA(nullptr, resourceName(number));
        ASSERT_NE(cursor, nullptr);
        EXPECT_EQ(LoadCursorA(nullptr, resourceName(number)), cursor);
        SetCursor(cursor);
        EXPECT_EQ(SetCursor(nullptr), cursor);
    }
    EXPECT_EQ(SetCursor(nullptr), nullptr);
}

TEST(Resources, ASharedIconIsOneAndTheSame) {
    HANDLE icon = LoadImageA(nullptr, resourceName(applicationIcon), IMAGE_ICON, 32, 32, LR_SHARED);
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(LoadImageA(nullptr, resourceName(applicationIcon), IMAGE_ICON, 32, 32, LR_SHARED),
              icon);
}

TEST(Resources, AnIconOfOnesOwnIsDestroyed) {
    auto load = [] {
        return static_cast<HICON>(LoadImageA(nullptr, resourceName(applicationIcon), IMAGE_ICON, 16,
                                             16, LR_DEFAULTCOLOR));
    };
    HICON one = load();
    HICON two = load();
    ASSERT_NE(one, nullptr);
    EXPECT_NE(one, two);
    EXPECT_TRUE(DestroyIcon(one));
    EXPECT_TRUE(DestroyIcon(two));
}

TEST(Resources, AnIconThatIsNotThereIsNull) {
    EXPECT_EQ(LoadImageA(GetModuleHandleA(nullptr), resourceName(999), IMAGE_ICON, 16, 16,
                         LR_DEFAULTCOLOR),
              nullptr);
}

// A picture of one pixel with 24 bits.
std::string onePixel() {
    std::string file = "BM";
    auto word = [&](unsigned value) {
        file += static_cast<char>(value & 0xFF);
        file += static_cast<char>(value >> 8);
    };
    auto dword = [&](unsigned value) { word(value & 0xFFFF), word(value >> 16); };
    dword(58), dword(0), dword(54);
    dword(40), dword(1), dword(1), word(1), word(24), dword(0), dword(4);
    dword(2835), dword(2835), dword(0), dword(0);
    dword(0x00FF00);
    return file;
}

class Pictures : public testing::Test {
protected:
    static HANDLE load(const std::string& path) {
        return LoadImageA(nullptr, path.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE);
    }

    std::string write(const char* name, std::string_view bytes) {
        std::string path = folder.path(name);
        HANDLE file = CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
        DWORD written = 0;
        EXPECT_TRUE(WriteFile(file, bytes, &written, nullptr));
        CloseHandle(file);
        return path;
    }

    TestFolder folder;
};

TEST_F(Pictures, AreReadFromAFileWhateverItsName) {
    HANDLE picture = load(write("picture.bnk", onePixel()));
    ASSERT_NE(picture, nullptr);
    EXPECT_TRUE(DeleteObject(picture));
}

TEST_F(Pictures, NeedAFileThatIsAPicture) {
    EXPECT_EQ(load(folder.path("missing.bmp")), nullptr);
    EXPECT_EQ(load(write("short.bmp", "BM")), nullptr);
    EXPECT_EQ(load(write("text.bmp", std::string(100, 'x'))), nullptr);
}

TEST(Fonts, AreMadeAndDeleted) {
    LOGFONTA look{};
    look.lfHeight = -11;
    look.lfWeight = 400;
    std::string_view("MS Shell Dlg").copy(look.lfFaceName, sizeof look.lfFaceName - 1);
    HFONT font = CreateFontIndirectA(&look);
    ASSERT_NE(font, nullptr);
    EXPECT_TRUE(DeleteObject(font));
}

TEST(Metrics, TheScreenHoldsTheWorkArea) {
    RECT area{};
    EXPECT_TRUE(SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0));
    EXPECT_LE(area.right, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_LE(area.bottom, GetSystemMetrics(SM_CYSCREEN));
    EXPECT_GT(area.bottom, area.top);
}

TEST(Metrics, IconsAreSmallAndLarge) {
    EXPECT_EQ(GetSystemMetrics(SM_CXICON), 32);
    EXPECT_EQ(GetSystemMetrics(SM_CYICON), 32);
    EXPECT_EQ(GetSystemMetrics(SM_CXSMICON), 16);
    EXPECT_EQ(GetSystemMetrics(SM_CYSMICON), 16);
    EXPECT_GT(GetSystemMetrics(SM_CYCAPTION), 10);
}

TEST(Metrics, TheScreenHasADensity) {
    HDC context = GetDC(nullptr);
    ASSERT_NE(context, nullptr);
    EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSX), 96);
    EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSY), 96);
    EXPECT_EQ(ReleaseDC(nullptr, context), 1);
}

TEST(Metrics, ASystemBrushIsAlwaysTheSame) {
    EXPECT_NE(GetSysColorBrush(COLOR_BTNFACE), nullptr);
    EXPECT_EQ(GetSysColorBrush(COLOR_BTNFACE), GetSysColorBrush(COLOR_BTNFACE));
}

}  // namespace
