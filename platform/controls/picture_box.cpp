#include "platform/controls/picture_box.h"

#include <utility>

#include "platform/api/gdi32.h"
#include "platform/api/user32.h"
#include "platform/controls/control_failure.h"
#include "platform/controls/form.h"
#include "platform/services/files.h"

namespace magpie {

Picture& Picture::operator=(Picture&& other) noexcept {
    std::swap(bitmap_, other.bitmap_);
    return *this;
}

Picture::~Picture() {
    if (bitmap_ != nullptr) win::DeleteObject(bitmap_);
}

Picture LoadPicture(const std::string& path, int width, int height) {
    Picture picture;
    picture.bitmap_ = static_cast<win::HBITMAP>(win::LoadImageA(
        nullptr, path.c_str(), win::IMAGE_BITMAP, width, height, win::LR_LOADFROMFILE));
    if (picture.bitmap_ == nullptr)
        throw Failure{fileExists(path) ? failure::invalidPicture : failure::fileNotFound};
    return picture;
}

void PictureBox::create(Container& container, const Place& place) {
    createWindow(
        container,
        {"STATIC", win::SS_LEFT | win::SS_NOTIFY | win::WS_CLIPCHILDREN, win::WS_EX_CONTROLPARENT},
        place, "");
}

void PictureBox::createForPicture(Container& container, const Place& place) {
    createWindow(container, {"STATIC", win::SS_BITMAP | win::SS_REALSIZECONTROL | win::SS_NOTIFY},
                 place, "");
}

void PictureBox::showPicture(Picture picture) {
    win::SendMessageA(hWnd(), win::STM_SETIMAGE, win::IMAGE_BITMAP,
                      reinterpret_cast<win::LPARAM>(picture.bitmap()));
    picture_ = std::move(picture);
}

void PictureBox::forgetWindow() {
    MouseArea::forgetWindow();
    picture_ = Picture{};
}

}  // namespace magpie
