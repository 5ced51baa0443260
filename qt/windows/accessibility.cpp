// A factory of accessible objects: labels know their role, state and press. A page
// is a named pane, so that it is announced when the focus comes into it: the window
// has been announced long before.
#include <QAccessibleWidget>
#include <algorithm>
#include <utility>
#include <vector>

#include "qt/windows/label_views.h"
#include "qt/windows/page_window.h"
#include "qt/windows/qt_values.h"
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
        case LabelRole::Reader:
            break;
    }
    return QAccessible::StaticText;
}

using EntryIds = std::vector<QAccessible::Id>;

EntryIds makeEntries(const QAccessibleInterface& parent, const MenuItem& menu, LabelView& view);

int indexIn(const EntryIds& entries, const QAccessibleInterface* child) {
    for (std::size_t i = 0; i < entries.size(); ++i)
        if (child && QAccessible::accessibleInterface(entries[i]) == child)
            return static_cast<int>(i);
    return -1;
}

QAccessibleInterface* childIn(const EntryIds& entries, int index) {
    const bool there = index >= 0 && index < static_cast<int>(entries.size());
    return there ? QAccessible::accessibleInterface(entries[static_cast<std::size_t>(index)])
                 : nullptr;
}

/// An entry of a menu that a label opens. The toolkit tells of menus only while they are
/// open, and of some not even then.
class AccessibleMenuItem : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    AccessibleMenuItem(const QAccessibleInterface& parent, MenuItem& item, LabelView& view)
        : parent_(QAccessible::uniqueId(const_cast<QAccessibleInterface*>(&parent))),
          item_(item),
          view_(view) {}
    ~AccessibleMenuItem() override { forget(entries_); }

    static void forget(EntryIds& entries) {
        for (const QAccessible::Id id : std::exchange(entries, {}))
            QAccessible::deleteAccessibleInterface(id);
    }

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return view_.widget().window()->windowHandle(); }
    QRect rect() const override { return {}; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::accessibleInterface(parent_);
    }
    int childCount() const override { return static_cast<int>(entries().size()); }
    QAccessibleInterface* child(int index) const override { return childIn(entries(), index); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return indexIn(entries(), child);
    }

    QAccessible::Role role() const override {
        if (!item_.children.empty())
            return QAccessible::PopupMenu;
        if (item_.radio)
            return QAccessible::RadioButton;
        return item_.checkable ? QAccessible::CheckBox : QAccessible::MenuItem;
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.disabled = !item_.enabled;
        state.invisible = true;  // until the menu is opened
        state.hasPopup = !item_.children.empty();
        state.checkable = item_.checkable || item_.radio;
        state.checked = item_.checked;
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return toQt(plainCaption(item_.caption));
        return kind == QAccessible::Accelerator ? toQt(item_.shortcut) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override {
        return item_.children.empty() ? QStringList{pressAction()} : QStringList{};
    }
    void doAction(const QString& name) override {
        if (auto* button = dynamic_cast<ButtonView*>(&view_); button && name == pressAction())
            button->assistiveChoose(item_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    const EntryIds& entries() const {
        if (entries_.empty() && !item_.children.empty())
            entries_ = makeEntries(*this, item_, view_);
        return entries_;
    }

    const QAccessible::Id parent_;
    MenuItem& item_;
    LabelView& view_;
    mutable EntryIds entries_;
};

// Of what a menu holds; separators are seen only.
EntryIds makeEntries(const QAccessibleInterface& parent, const MenuItem& menu, LabelView& view) {
    EntryIds entries;
    for (MenuItem* item : menu.children)
        if (!item->caption.empty())
            entries.push_back(QAccessible::registerAccessibleInterface(
                new AccessibleMenuItem(parent, *item, view)));
    return entries;
}

class AccessibleLabel : public QAccessibleWidget {
  public:
    AccessibleLabel(QWidget* widget, LabelView& view)
        : QAccessibleWidget(widget, roleOf(view.label())), view_(view) {}
    ~AccessibleLabel() override { AccessibleMenuItem::forget(entries_); }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return view_.spokenName();
        if (kind == QAccessible::Description)
            return view_.spokenDescription();
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        // Asked for, not told of: the widgets stay as they are.
        state.disabled = state.disabled || view_.isCovered();
        const LabelRole role = view_.label().role;
        state.checkable = role == LabelRole::CheckBox || role == LabelRole::RadioButton;
        state.checked = state.checkable && view_.label().checked;
        state.hasPopup = view_.label().menu != nullptr;
        return state;
    }

    // Frames and pictures tell nothing: what stands on them belongs to the page.
    QAccessibleInterface* parent() const override {
        for (QWidget* above = widget()->parentWidget(); above; above = above->parentWidget())
            if (dynamic_cast<Page*>(above))
                return QAccessible::queryAccessibleInterface(above);
        return QAccessibleWidget::parent();
    }

    // The entries of its menu, which can be read before that is open.
    int childCount() const override { return static_cast<int>(entries().size()); }
    QAccessibleInterface* child(int index) const override { return childIn(entries(), index); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return indexIn(entries(), child);
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (dynamic_cast<ButtonView*>(&view_))
            names.prepend(pressAction());
        if (view_.label().menu)
            names.append(showMenuAction());
        return names;
    }

    void doAction(const QString& name) override {
        auto* button = dynamic_cast<ButtonView*>(&view_);
        if (button && (name == pressAction() || (name == showMenuAction() && button->label().menu)))
            button->assistivePress();
        else
            QAccessibleWidget::doAction(name);
    }

  private:
    const EntryIds& entries() const {
        if (view_.label().menu && entries_.empty())
            entries_ = makeEntries(*this, *view_.label().menu, view_);
        return entries_;
    }

    LabelView& view_;
    mutable EntryIds entries_;
};

/// A page, whose children are what is told of its screen now.
class AccessiblePage : public QAccessibleWidget {
  public:
    explicit AccessiblePage(Page& page) : QAccessibleWidget(&page, QAccessible::Pane) {}

    int childCount() const override { return static_cast<int>(told().size()); }
    QAccessibleInterface* child(int index) const override {
        const std::vector<ControlView*> views = told();
        const bool there = index >= 0 && index < static_cast<int>(views.size());
        return there ? QAccessible::queryAccessibleInterface(
                           &views[static_cast<std::size_t>(index)]->widget())
                     : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        const std::vector<ControlView*> views = told();
        const auto found = std::ranges::find_if(views, [&](ControlView* view) {
            return child != nullptr && &view->widget() == child->object();
        });
        return found == views.end() ? -1 : static_cast<int>(found - views.begin());
    }

  private:
    std::vector<ControlView*> told() const { return dynamic_cast<Page&>(*widget()).told(); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (auto* label = dynamic_cast<LabelView*>(object))
        return new AccessibleLabel(widget, *label);
    if (auto* page = dynamic_cast<Page*>(object))
        return new AccessiblePage(*page);
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
