// Turns menu items into actions; the one that was chosen leads back to its item.
#include "qt/boxes/popup_menu.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QActionGroup>
#include <QMenu>
#include <QTimer>

#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

/// The toolkit calls every entry a plain one.
class AccessibleEntry : public QAccessibleObject, public QAccessibleActionInterface {
  public:
    AccessibleEntry(QAction& action, QMenu& menu)
        : QAccessibleObject(&action), action_(action), menu_(menu) {}

    QAccessible::Role role() const override {
        if (action_.isSeparator())
            return QAccessible::Separator;
        if (action_.menu())
            return QAccessible::PopupMenu;
        if (!action_.isCheckable())
            return QAccessible::MenuItem;
        return action_.actionGroup() ? QAccessible::RadioButton : QAccessible::CheckBox;
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.disabled = !action_.isEnabled() || action_.isSeparator();
        state.invisible = !menu_.isVisible();
        state.focused = menu_.activeAction() == &action_;
        state.hasPopup = action_.menu() != nullptr;
        state.checkable = action_.isCheckable();
        state.checked = action_.isChecked();
        return state;
    }

    // The caption, before the tab; behind it stands the shortcut.
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return action_.text().section('\t', 0, 0).remove('&');
        return kind == QAccessible::Accelerator ? action_.text().section('\t', 1) : QString();
    }

    QRect rect() const override {
        const QRect place = menu_.actionGeometry(&action_);
        return {menu_.mapToGlobal(place.topLeft()), place.size()};
    }

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&menu_);
    }
    int childCount() const override { return action_.menu() ? 1 : 0; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 && action_.menu() ? QAccessible::queryAccessibleInterface(action_.menu())
                                            : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* inner) const override {
        return inner && inner->object() == action_.menu() ? 0 : -1;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction())
            action_.trigger();
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    QAction& action_;
    QMenu& menu_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* action = qobject_cast<QAction*>(object);
    auto* menu = action ? qobject_cast<QMenu*>(action->parent()) : nullptr;
    return menu ? new AccessibleEntry(*action, *menu) : nullptr;
}

// From now on entries of menus are announced as what they are: plain, checked, one of
// several, or the way to a further menu.
void installEntryAccessibility() {
    static const bool kInstalled = (QAccessible::installFactory(makeInterface), true);
    static_cast<void>(kInstalled);
}

void fill(QMenu& menu, const MenuItem& source);

// The menu's one group of entries of which one is checked.
QActionGroup* radioGroup(QMenu& menu) {
    auto* group = menu.findChild<QActionGroup*>({}, Qt::FindDirectChildrenOnly);
    return group ? group : new QActionGroup(&menu);
}

void addItem(QMenu& menu, MenuItem& item) {
    const QString caption = toQt(item.caption);
    if (caption.isEmpty()) {
        menu.addSeparator();
        return;
    }
    if (!item.children.empty()) {
        QMenu* inner = menu.addMenu(caption);
        inner->setFont(menu.font());
        inner->setPalette(menu.palette());
        inner->setEnabled(item.enabled);
        fill(*inner, item);
        return;
    }
    // What stands behind a tab is shown at the entry's right edge.
    QAction* action =
        menu.addAction(item.shortcut.empty() ? caption : caption + '\t' + toQt(item.shortcut));
    action->setObjectName(QString::fromStdString(item.id));
    action->setCheckable(item.checkable || item.radio);
    if (item.radio)
        action->setActionGroup(radioGroup(menu));
    action->setChecked(item.checked);
    action->setEnabled(item.enabled);
    action->setData(QVariant::fromValue(static_cast<void*>(&item)));
}

void fill(QMenu& menu, const MenuItem& source) {
    for (MenuItem* item : source.children)
        addItem(menu, *item);
}

}  // namespace

MenuItem* choosePopUp(const BoxStyle& style, const MenuItem& menu, QPoint at, bool byKey) {
    installEntryAccessibility();
    QMenu popup(toQt(menu.caption), style.parent);
    popup.setAccessibleName(toQt(menu.caption));
    popup.setFont(style.font);
    popup.setPalette(notebookColors(style.accent, rgb(255, 255, 255), style.scheme));
    fill(popup, menu);
    if (byKey && !popup.actions().isEmpty())
        QTimer::singleShot(0, &popup, [&] { popup.setActiveAction(popup.actions().front()); });
    const QAction* chosen = popup.exec(at);
    return chosen ? static_cast<MenuItem*>(chosen->data().value<void*>()) : nullptr;
}

}  // namespace quillor
