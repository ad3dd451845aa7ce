// The system's brushes.
#include <gtest/gtest.h>

#include "platform/api/gdi32.h"
#include "platform/api/user32.h"

namespace {

TEST(Brush, TheSystemsOwnFillsARectangle) {
    win::HBRUSH face = win::GetSysColorBrush(win::COLOR_BTNFACE);
    ASSERT_NE(face, nullptr);
    EXPECT_EQ(win::GetSysColorBrush(win::COLOR_BTNFACE), face);
    win::HDC context = win::GetDC(nullptr);
    ASSERT_NE(context, nullptr);
    const win::RECT nothing{0, 0, 0, 0};
    EXPECT_NE(win::FillRect(context, &nothing, face), 0);
    win::ReleaseDC(nullptr, context);
}

}  // namespace
