// A factory of accessible objects that know the role, state and press of a label.
#include "qt/windows/accessible_label.h"

#include <QAccessibleWidget>

#include "qt/windows/label_views.h"

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
    auto* view = dynamic_cast<LabelView*>(object);
    return view ? new AccessibleLabel(static_cast<QWidget*>(object), *view) : nullptr;
}

}  // namespace

void installLabelAccessibility() {
    static const bool kInstalled = (QAccessible::installFactory(makeInterface), true);
    static_cast<void>(kInstalled);
}

}  // namespace quillor
