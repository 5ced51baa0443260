// The order of the differences: place, words, look, and at last who is on show.
#include "qt/windows/control_view.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/text_rules.h"
#include "qt/windows/qt_values.h"

namespace quillor {

TwipScale TwipScale::fitting(QSizeF sheet, QSizeF twips, QSize window) {
    TwipScale scale;
    scale.pixels = std::min(window.width() / sheet.width(), window.height() / sheet.height());
    // Whole pixels, so that the screen's first column is sharp.
    scale.origin = {std::floor((window.width() - twips.width() * scale.pixels) / 2),
                    std::floor((window.height() - twips.height() * scale.pixels) / 2)};
    scale.screen = twips;
    scale.window = window;
    return scale;
}

QRect TwipScale::place(const QRectF& twips) const {
    const auto x = [&](double edge) {
        return static_cast<int>(std::lround(origin.x() + edge * pixels));
    };
    const auto y = [&](double edge) {
        return static_cast<int>(std::lround(origin.y() + edge * pixels));
    };
    const int left = x(twips.left());
    const int top = y(twips.top());
    return QRect(left, top, x(twips.right()) - left, y(twips.bottom()) - top);
}

QRect TwipScale::groundPlace(const QRectF& twips) const {
    QRect reached = place(twips);
    if (twips.left() <= 0 && twips.right() >= screen.width()) {
        reached.setLeft(0);
        reached.setWidth(window.width());
    }
    if (twips.top() <= 0 && twips.bottom() >= screen.height()) {
        reached.setTop(0);
        reached.setHeight(window.height());
    }
    return reached;
}

QPointF parentOrigin(const Control& control) {
    QPointF origin;
    for (const Frame* frame = control.parent; frame; frame = frame->parent)
        origin += QPointF(frame->left, frame->top);
    return origin;
}

QRectF screenRect(const Control& control) {
    return QRectF(control.left, control.top, control.width, control.height)
        .translated(parentOrigin(control));
}

namespace {

bool testIdsWanted() {
    static const bool kWanted = qEnvironmentVariable("QUILLOR_TEST_IDS") == "1";
    return kWanted;
}

}  // namespace

bool ControlView::differs() {
    changes_ |= shown_.update(ref_);
    return changes_.any() || control().motions != motions_;
}

void ControlView::sync(const TwipScale& scale) {
    const ShownControl::Changes changes = std::exchange(changes_, {});
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
    if (shown_.visible && mayShow() && own.isHidden())
        own.show();
    if (control().motions != motions_)
        startMotion();
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
    place_ = place;
    put();
}

void ControlView::put() {
    QWidget& own = widget();
    const QRect now = place_.translated((shift_ * place_.height()).toPoint());
    if (now != own.geometry())
        own.setGeometry(now);
}

// One that was made while nothing was seen of it is not made up for.
void ControlView::startMotion() {
    motions_ = control().motions;
    if (widget().isVisible())
        link_.shell().motions.start(this, control().motion, [this](QPointF shift) {
            shift_ = shift;
            put();
        });
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
