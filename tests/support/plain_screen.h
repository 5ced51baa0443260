// A screen whose every part a test sets itself.
#pragma once

#include <functional>

#include "toolkit/screen.h"
#include "toolkit/style.h"

namespace quillor {

class PlainScreen : public Screen {
  public:
    PlainScreen() : Screen("frmPlain") {
        width = kWideSheet.width;
        height = kWideSheet.height;
    }
    using Screen::add;

    Label& addButton(Label& label, const char* id, Twips left, Twips top) {
        label.id = id;
        label.role = LabelRole::Button;
        add(label).place(left, top, 900, 300);
        return label;
    }
    TextField& addField(TextField& field, const char* id, Twips left, Twips top) {
        field.id = id;
        add(field).place(left, top, 1800, 300);
        return field;
    }

    std::function<void(KeyEvent&)> keyDownHandler;
    std::function<void(KeyEvent&)> unusedHandler;
    std::function<void(char16_t)> keyPressHandler;
    std::function<void()> closeHandler;
    std::function<void()> menuHandler;
    std::function<void(const std::vector<std::filesystem::path>&)> filesHandler;
    Control* firstFocus = nullptr;

    Control* initialFocus() override { return firstFocus; }
    void takePaper(const ImageRef&) override {}
    bool takesFiles() const override { return filesHandler != nullptr; }

  protected:
    void onLoad() override {}
    void onKeyDown(KeyEvent& event) override {
        if (keyDownHandler)
            keyDownHandler(event);
    }
    void onKeyUnused(KeyEvent& event) override {
        if (unusedHandler)
            unusedHandler(event);
    }
    void onKeyPress(char16_t character) override {
        if (keyPressHandler)
            keyPressHandler(character);
    }
    void onContextMenu() override {
        if (menuHandler)
            menuHandler();
    }
    void onFilesDropped(const std::vector<std::filesystem::path>& files) override {
        filesHandler(files);
    }
    void onCloseRequest() override {
        if (closeHandler)
            closeHandler();
    }
};

}  // namespace quillor
