#include "qt/popup_menu.h"

#include <QMenu>

#include "qt/qt_values.h"

namespace quillor {

namespace {

void fill(QMenu& menu, const MenuItem& source);

void addItem(QMenu& menu, MenuItem& item) {
    const QString caption = toQt(item.caption);
    if (caption.isEmpty()) {
        menu.addSeparator();
        return;
    }
    if (!item.children.empty()) {
        QMenu* inner = menu.addMenu(caption);
        inner->setFont(menu.font());
        inner->setEnabled(item.enabled);
        fill(*inner, item);
        return;
    }
    // What stands behind a tab is shown at the entry's right edge.
    QAction* action =
        menu.addAction(item.shortcut.empty() ? caption : caption + '\t' + toQt(item.shortcut));
    action->setObjectName(QString::fromStdString(item.id));
    action->setCheckable(item.checkable);
    action->setChecked(item.checked);
    action->setEnabled(item.enabled);
    action->setData(QVariant::fromValue(static_cast<void*>(&item)));
}

void fill(QMenu& menu, const MenuItem& source) {
    for (MenuItem* item : source.children)
        addItem(menu, *item);
}

}  // namespace

MenuItem* choosePopUp(QWidget* parent, const MenuItem& menu, const QFont& font, QPoint at) {
    QMenu popup(toQt(menu.caption), parent);
    popup.setAccessibleName(toQt(menu.caption));
    popup.setFont(font);
    fill(popup, menu);
    const QAction* chosen = popup.exec(at);
    return chosen ? static_cast<MenuItem*>(chosen->data().value<void*>()) : nullptr;
}

}  // namespace quillor
