// The order of the differences: place, words, look, and at last who is on show.
#include "qt/windows/control_view.h"

#include "core/text_rules.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

bool testIdsWanted() {
    static const bool kWanted = qEnvironmentVariable("QUILLOR_TEST_IDS") == "1";
    return kWanted;
}

QString description(const Control& control) {
    QString text = toQt(trimmed(control.toolTip));
    if (testIdsWanted())
        text += QStringLiteral(" [#%1]").arg(QString::fromStdString(control.id));
    return text;
}

}  // namespace

void ControlView::sync(const TwipScale& scale) {
    syncPlace(scale);
    syncWords();
    syncLook();
    QWidget& own = widget();
    if (control_.enabled && own.testAttribute(Qt::WA_ForceDisabled))
        own.setEnabled(true);
    if (control_.visible && own.isHidden())
        own.show();
}

void ControlView::withdraw() {
    QWidget& own = widget();
    if (!control_.enabled && !own.testAttribute(Qt::WA_ForceDisabled))
        own.setEnabled(false);
    if (!control_.visible && !own.isHidden())
        own.hide();
}

bool ControlView::isUsable() const {
    if (!control_.visible || !control_.enabled)
        return false;
    for (const Frame* frame = control_.parent; frame; frame = frame->parent)
        if (!frame->visible || !frame->enabled)
            return false;
    return true;
}

bool ControlView::isHeadBar(QSizeF screen) const {
    const QRectF place = extent();
    return hasGround() && place.top() <= 0 && place.bottom() < screen.height() &&
           place.left() <= 0 && place.right() >= screen.width();
}

QString ControlView::spokenName() const {
    return toQt(control_.spokenName);
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
    if (control_.parent)
        place.translate(-placed(screenRect(*control_.parent), control_.parent->opaque).topLeft());
    if (place != own.geometry())
        own.setGeometry(place);
}

QRectF ControlView::ownPlace() const {
    const QRectF twips = extent();
    const QPointF corner = scale_.origin + twips.topLeft() * scale_.pixels;
    return QRectF(corner - scale_.groundPlace(twips).topLeft(), twips.size() * scale_.pixels);
}

void ControlView::syncWords() {
    QWidget& own = widget();
    const QString name = spokenName();
    if (name != own.accessibleName())
        own.setAccessibleName(name);
    if (described_ && toolTip_ == control_.toolTip)
        return;
    described_ = true;
    toolTip_ = control_.toolTip;
    own.setToolTip(toQt(trimmed(toolTip_)));
    own.setAccessibleDescription(description(control_));
}

}  // namespace quillor
