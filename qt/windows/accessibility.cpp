// A factory of accessible objects: labels know their role, state and press. A page
// is a named pane, so that it is announced when the focus comes into it: the window
// has been announced long before.
#include <QAccessibleWidget>

#include "qt/windows/label_views.h"
#include "qt/windows/page_window.h"
#include "qt/windows/shell.h"

namespace quillor {

namespace {

QAccessible::Role roleOf(const Label& label) {
    switch (label.role) {
        case LabelRole::Button:
            return QAccessible::Button;
        case LabelRole::CheckBox:
            return QAccessible::CheckBox;
        case LabelRole::RadioButton:
            return QAccessible::RadioButton;
        case LabelRole::Notification:
            return QAccessible::Notification;
        case LabelRole::Plain:
            break;
    }
    return QAccessible::StaticText;
}

class AccessibleLabel : public QAccessibleWidget {
  public:
    AccessibleLabel(QWidget* widget, LabelView& view)
        : QAccessibleWidget(widget, roleOf(view.label())), view_(view) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return view_.spokenName();
        if (kind == QAccessible::Description)
            return view_.spokenDescription();
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        const LabelRole role = view_.label().role;
        state.checkable = role == LabelRole::CheckBox || role == LabelRole::RadioButton;
        state.checked = state.checkable && view_.label().checked;
        return state;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (dynamic_cast<ButtonView*>(&view_))
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override {
        auto* button = dynamic_cast<ButtonView*>(&view_);
        if (button && name == pressAction())
            button->assistivePress();
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    LabelView& view_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (auto* label = dynamic_cast<LabelView*>(object))
        return new AccessibleLabel(widget, *label);
    if (dynamic_cast<Page*>(object))
        return new QAccessibleWidget(widget, QAccessible::Pane);
    const auto* window = dynamic_cast<PageWindow*>(object);
    if (window && window->isDialog())
        return new QAccessibleWidget(widget, QAccessible::Dialog);
    return nullptr;
}

}  // namespace

void installAccessibility() {
    static const bool kInstalled = (QAccessible::installFactory(makeInterface), true);
    static_cast<void>(kInstalled);
}

}  // namespace quillor
