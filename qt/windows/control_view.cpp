// The order of the differences: place, words, look, and at last who is on show.
#include "qt/windows/control_view.h"

#include <utility>

#include "core/text_rules.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

bool testIdsWanted() {
    static const bool kWanted = qEnvironmentVariable("QUILLOR_TEST_IDS") == "1";
    return kWanted;
}

}  // namespace

void ControlView::sync(const TwipScale& scale) {
    const ShownControl::Changes changes = shown_.update(ref_);
    syncPlace(scale);
    if (changes.words)
        widget().setToolTip(toQt(shown_.toolTip));
    if (changes.words || !std::exchange(named_, true))
        syncWords();
    syncLook();
    announce(changes);
    QWidget& own = widget();
    if (shown_.enabled && own.testAttribute(Qt::WA_ForceDisabled))
        own.setEnabled(true);
    if (shown_.visible && own.isHidden())
        own.show();
}

void ControlView::withdraw() {
    QWidget& own = widget();
    if (!shown_.enabled && !own.testAttribute(Qt::WA_ForceDisabled))
        own.setEnabled(false);
    if (!shown_.visible && !own.isHidden())
        own.hide();
}

bool ControlView::isHeadBar(QSizeF screen) const {
    const QRectF place = extent();
    return hasGround() && place.top() <= 0 && place.bottom() < screen.height() &&
           place.left() <= 0 && place.right() >= screen.width();
}

void ControlView::takeFocus() {
    if (link_.focus().control() != &control())
        link_.event([this](Screen&) { link_.focus().take(control()); });
}

void ControlView::syncPlace(const TwipScale& scale) {
    QWidget& own = widget();
    if (!(scale == scale_))
        own.update();
    scale_ = scale;
    const auto placed = [&](const QRectF& twips, bool ground) {
        return ground ? scale.groundPlace(twips) : scale.place(twips);
    };
    QRect place = placed(extent(), hasGround());
    if (const Frame* frame = control().parent)
        place.translate(-placed(screenRect(*frame), frame->opaque).topLeft());
    if (place != own.geometry())
        own.setGeometry(place);
}

QRectF ControlView::ownPlace() const {
    const QRectF twips = extent();
    const QPointF corner = scale_.origin + twips.topLeft() * scale_.pixels;
    return QRectF(corner - scale_.groundPlace(twips).topLeft(), twips.size() * scale_.pixels);
}

void ControlView::syncWords() {
    widget().setAccessibleName(spokenName());
    widget().setAccessibleDescription(spokenDescription());
}

QString ControlView::spokenName() const {
    return toQt(shown_.name);
}

// The blanks around a tool tip are there to be seen.
QString ControlView::spokenDescription() const {
    QString text = toQt(trimmed(shown_.toolTip));
    if (testIdsWanted())
        text += QStringLiteral(" [#%1]").arg(QString::fromStdString(control().id));
    return text;
}

}  // namespace quillor
