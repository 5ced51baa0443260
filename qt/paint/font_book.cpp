// Installed fonts go before those that are carried along.
#include "qt/paint/font_book.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontInfo>
#include <algorithm>
#include <cmath>

#include "core/files.h"
#include "core/texts.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

const QString kComicName = QStringLiteral("Comic Sans MS");
constexpr double kTwipsPerPoint = 20;

// By its name. A filter of the folder would make the system's regular expressions of it.
bool isFont(const QString& name) {
    return name.endsWith(".ttf", Qt::CaseInsensitive) || name.endsWith(".otf", Qt::CaseInsensitive);
}

QString displayName() {
    return toQt(texts::kDisplayFont);
}

}  // namespace

FontBook::FontBook(const std::vector<std::filesystem::path>& folders) {
    for (const std::filesystem::path& folder : folders) {
        const QDir directory(toQt(fromPath(folder)));
        for (const QString& name : directory.entryList(QDir::Files, QDir::Name))
            // What a link leads to may be a pipe.
            if (isFont(name) && isFile(folder / toPath(fromQt(name))))
                load(directory.filePath(name));
    }
}

// The comic face tells itself by its name; any other font is the rounded one.
void FontBook::load(const QString& file) {
    const int font = QFontDatabase::addApplicationFont(file);
    for (const QString& name : QFontDatabase::applicationFontFamilies(font)) {
        QString& known = name.contains("comic", Qt::CaseInsensitive) ? comic_ : rounded_;
        if (known.isEmpty())
            known = name;
    }
}

bool FontBook::present(TextView name) const {
    if (QFontDatabase::hasFamily(toQt(name)))
        return true;
    return name == texts::kDisplayFont && !rounded_.isEmpty();
}

QString FontBook::family(Face face) const {
    if (face == Face::Display)
        return firstOf(displayFamily_, displayName(), rounded_);
    if (face == Face::Comic)
        return firstOf(comicFamily_, kComicName, comic_);
    return {};
}

QString FontBook::firstOf(std::optional<QString>& known, const QString& installed,
                          const QString& loaded) {
    if (!known)
        known = QFontDatabase::hasFamily(installed) ? installed : loaded;
    return *known;
}

QFont FontBook::font(const Font& font, double pixelsPerTwip) const {
    QFont result;
    const QString name = family(font.face);
    if (!name.isEmpty())
        result.setFamily(name);
    // That font has one weight, which is bold already: bolder would smear it.
    result.setBold(font.bold && name != displayName());
    const double points = font.size * (font.face == Face::Plain ? textSize : 1);
    const double size = points * kTwipsPerPoint * pixelsPerTwip;
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
    return result;
}

}  // namespace quillor
