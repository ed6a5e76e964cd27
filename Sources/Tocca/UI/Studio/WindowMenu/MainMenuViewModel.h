#pragma once

#include "Platform/Desktop/MainMenu.h"
#include "Support/Subscription.h"
#include "UI/Quick/RowsModel.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <vector>

namespace tocca::ui {

/// A menu item as it was when its menu was opened.
struct ShownMenuItem {
    QString title;
    QString shortcut;
    bool isSeparator = false;
    bool isEnabled = false;
    bool isCheckable = false;
    bool isChecked = false;

    bool operator==(const ShownMenuItem&) const = default;
};

/// The model of the main menu, as the window shows it where the desktop does not.
///
/// Order: `open` asks for the state of every item at once, so call it while the item that is being edited still has the focus, and
/// `perform` once it has it again.
/// Threads: main.
/// Errors: a menu or row that there is not does nothing.
class MainMenuViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(bool isShown READ isShown NOTIFY desktopChanged FINAL)
    Q_PROPERTY(QStringList titles READ titles NOTIFY desktopChanged FINAL)
    Q_PROPERTY(int openMenu READ openMenu NOTIFY openMenuChanged FINAL)
    Q_PROPERTY(QAbstractItemModel* items READ items CONSTANT FINAL)

public:
    explicit MainMenuViewModel(platform::MainMenu& menu);

    [[nodiscard]] bool isShown() const;

    /// The application's own menu bears its name.
    [[nodiscard]] QStringList titles() const;

    /// Index of the menu whose items are shown; −1 for none.
    [[nodiscard]] int openMenu() const { return openMenu_; }

    [[nodiscard]] QAbstractItemModel* items() { return &items_; }

    /// Opens a menu, or goes on to another one.
    Q_INVOKABLE void open(int index);
    Q_INVOKABLE void close();

    /// The next item of the open menu that can be chosen, `step` rows at a time from `row` on and round the ends; −1 when there is none.
    Q_INVOKABLE int nextItem(int row, int step) const;

    /// Does what an item of the menu opened last does.
    Q_INVOKABLE void perform(int row);

    Q_SIGNAL void desktopChanged();
    Q_SIGNAL void openMenuChanged();

private:
    platform::MainMenu& menu_;
    RowsModel<ShownMenuItem> items_;
    std::vector<std::vector<ShownMenuItem>> shown_;
    int openMenu_ = -1;
    int lastOpened_ = -1;
    Subscription desktopLink_;
};

} // namespace tocca::ui
