// Turns menu items into actions; the one that was chosen leads back to its item.
#include "qt/boxes/popup_menu.h"

#include <QActionGroup>
#include <QMenu>

#include "qt/boxes/accessible_entry.h"
#include "qt/windows/qt_values.h"

namespace quillor {

namespace {

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

MenuItem* choosePopUp(const BoxStyle& style, const MenuItem& menu, QPoint at) {
    installEntryAccessibility();
    QMenu popup(toQt(menu.caption), style.parent);
    popup.setAccessibleName(toQt(menu.caption));
    popup.setFont(style.font);
    popup.setPalette(notebookColors(style.accent, rgb(255, 255, 255)));
    fill(popup, menu);
    const QAction* chosen = popup.exec(at);
    return chosen ? static_cast<MenuItem*>(chosen->data().value<void*>()) : nullptr;
}

}  // namespace quillor
