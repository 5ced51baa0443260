// A name of chance in the folder itself; what it takes for the bytes to outlive a power cut.
#include "core/draft.h"

#include <algorithm>
#include <random>
#include <stdexcept>
#include <utility>

#include "core/files.h"
#include "core/guard.h"
#include "core/text_codec.h"

namespace quillor {

namespace fs = std::filesystem;

namespace {

// Short, because the name of the file itself may be as long as the system allows.
constexpr TextView kStart = u"Quillor-Saving-";
constexpr TextView kEnd = u".tmp";
constexpr TextView kDigits = u"0123456789abcdef";
constexpr std::size_t kNumberLength = 16;
constexpr int kTries = 16;

Text nameOfChance() {
    std::random_device chance;
    std::uniform_int_distribution<std::size_t> digit(0, kDigits.size() - 1);
    Text name(kStart);
    for (std::size_t i = 0; i < kNumberLength; ++i)
        name += kDigits[digit(chance)];
    return name.append(kEnd);
}

}  // namespace

Draft::Draft(Place folder) : folder_(std::move(folder)) {
    for (int i = 0; i < kTries && !writer_; ++i) {
        path_ = folder_.path() / toPath(nameOfChance());
        writer_ = folder_.disk().create(path_);
    }
    if (!writer_)
        throw std::runtime_error("no temporary file in " + toUtf8(fromPath(folder_.path())));
}

Draft::~Draft() {
    if (settled_)
        return;
    quietly("remove a draft", [this] {
        writer_.reset();
        folder_.disk().remove(path_);
    });
}

void Draft::fill(std::string_view bytes) {
    writer_->write(bytes);
    writer_->flush();
    writer_->close();
}

void Draft::become(const fs::path& file) {
    folder_.disk().replace(path_, file);
    settle();
}

void Draft::becomeNew(const fs::path& file) {
    if (folder_.disk().moveToNew(path_, file))
        settle();
}

// The file is in its place: that its folder cannot be flushed does not undo it.
void Draft::settle() {
    settled_ = true;
    quietly("flush a folder", [this] { folder_.disk().flushFolder(folder_.path()); });
}

bool Draft::isItsName(const fs::path& name) {
    const Text text = fromPath(name);
    if (text.size() != kStart.size() + kNumberLength + kEnd.size())
        return false;
    const TextView number = TextView(text).substr(kStart.size(), kNumberLength);
    return text.starts_with(kStart) && text.ends_with(kEnd) &&
           number.find_first_not_of(kDigits) == TextView::npos;
}

}  // namespace quillor
