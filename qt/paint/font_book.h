// The program's typefaces: what each face is drawn in on this system.
#pragma once

#include <QFont>
#include <QString>
#include <filesystem>
#include <optional>
#include <vector>

#include "toolkit/controls.h"

namespace quillor {

class FontBook {
  public:
    /// Loads every font file in the given folders; one that is missing is skipped.
    explicit FontBook(const std::vector<std::filesystem::path>& folders);

    /// Of the plain face, to its usual size; for those who ask the system for larger type.
    double textSize = 1;

    /// In logical pixels, at `pixelsPerTwip`.
    QFont font(const Font& font, double pixelsPerTwip) const;

    /// Whether text in the named font is drawn in it. A rounded font that has
    /// been loaded serves as the display font.
    bool present(TextView name) const;

  private:
    void load(const QString& file);
    QString family(Face face) const;
    static QString firstOf(std::optional<QString>& known, const QString& installed,
                           const QString& loaded);

    QString rounded_;  // loaded families; empty: none
    QString comic_;
    // What a face is drawn in, once the system has been asked: that takes it longer than
    // painting a label does.
    mutable std::optional<QString> displayFamily_;
    mutable std::optional<QString> comicFamily_;
};

}  // namespace quillor
