// PictureBox: a flat area that shows a picture, holds other controls, and hears
// the mouse.
#pragma once

#include <string>

#include "platform/controls/mouse_area.h"

namespace magpie {

// A picture read from a file, owned.
class Picture {
public:
    Picture() = default;
    Picture(Picture&& other) noexcept : bitmap_(other.bitmap_) { other.bitmap_ = nullptr; }
    Picture& operator=(Picture&& other) noexcept;
    ~Picture();

    win::HBITMAP bitmap() const { return bitmap_; }

    friend Picture LoadPicture(const std::string& path, int width, int height);

private:
    win::HBITMAP bitmap_ = nullptr;
};

// Reads a bitmap file, whatever its extension, stretched to width by height pixels
// or in its own size for 0. Raises 53 when there is no such file and 481 when it is
// no picture.
Picture LoadPicture(const std::string& path, int width = 0, int height = 0);

class PictureBox : public MouseArea, public Container {
public:
    // An area for other controls, or one that shows pictures.
    void create(Container& container, const Place& place);
    void createForPicture(Container& container, const Place& place);

    // Shows `picture`; an empty one clears the box.
    void showPicture(Picture picture);
    bool hasPicture() const { return picture_.bitmap() != nullptr; }

    win::HWND containerWindow() override { return hWnd(); }
    Form& owningForm() override { return form(); }
    void forgetWindow() override;

private:
    Picture picture_;
};

}  // namespace magpie
