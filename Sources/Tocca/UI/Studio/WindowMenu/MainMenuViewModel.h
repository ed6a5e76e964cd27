#pragma once

#include "Support/Subscription.h"
#include "UI/Studio/WindowMenu/MenuItemsViewModel.h"

#include <QObject>
#include <QQmlEngine>
#include <QStringList>

#include <vector>

namespace tocca::ui {

/// The main menu as the window shows it where the desktop does not.
///
/// Order: `open` asks for the state of every item at once, so call it while the item that is being edited still has the focus, and
/// `perform` once it has it again.
/// Threads: main.
class MainMenuViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(bool isShown READ isShown NOTIFY desktopChanged FINAL)
    Q_PROPERTY(QStringList titles READ titles NOTIFY desktopChanged FINAL)
    Q_PROPERTY(int openMenu READ openMenu NOTIFY openMenuChanged FINAL)
    Q_PROPERTY(tocca::ui::MenuItemsViewModel* items READ items CONSTANT FINAL)

public:
    explicit MainMenuViewModel(platform::MainMenu& menu);

    [[nodiscard]] bool isShown() const;

    /// The application's own menu bears its name.
    [[nodiscard]] QStringList titles() const;

    /// Index of the menu whose items are shown; −1 for none.
    [[nodiscard]] int openMenu() const { return openMenu_; }

    [[nodiscard]] MenuItemsViewModel* items() { return &items_; }

    /// Opens a menu, or goes on to another one.
    Q_INVOKABLE void open(int index);
    Q_INVOKABLE void close();

    /// Does what an item of the menu opened last does.
    Q_INVOKABLE void perform(int row);

    Q_SIGNAL void desktopChanged();
    Q_SIGNAL void openMenuChanged();

private:
    platform::MainMenu& menu_;
    MenuItemsViewModel items_;
    std::vector<std::vector<ShownMenuItem>> shown_;
    int openMenu_ = -1;
    Subscription desktopLink_;
};

} // namespace tocca::ui
