#pragma once

#include "Platform/KeyCodes.h"
#include "UI/Controllers.h"
#include "UI/Pages.h"
#include "UI/Popover/Packs/PackImport.h"
#include "UI/Quick/RowsModel.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Settings/SettingsViewModel.h"
#include "UI/Settings/StatusViewModel.h"

#include <QList>
#include <QQmlEngine>
#include <QUrl>

#include <functional>

namespace tocca::ui {

/// A sound as the popover lists it.
struct SoundPackRow {
    QString icon;
    QString title;
    QString line;
    bool isSelected = false;
    bool isTabStop = false; // the Tab key comes to one row of each list

    bool operator==(const SoundPackRow&) const = default;
};

/// The model of the popover: the sounds it offers, a page of the imported ones at a time, and what its buttons do.
///
/// Threads: main.
/// Errors: a row that there is not chooses nothing.
class MenuBarViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the popover")
    Q_PROPERTY(tocca::ui::SettingsViewModel* settings READ settings CONSTANT FINAL)
    Q_PROPERTY(tocca::ui::StatusViewModel* status READ status CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel* builtInPacks READ builtInPacks CONSTANT FINAL)
    Q_PROPERTY(QAbstractItemModel* communityPacks READ communityPacks CONSTANT FINAL)
    Q_PROPERTY(bool hasCommunityLibrary READ hasCommunityLibrary NOTIFY communityChanged FINAL)
    Q_PROPERTY(QString communityTitle READ communityTitle NOTIFY communityChanged FINAL)
    Q_PROPERTY(QString communityPosition READ communityPosition NOTIFY communityChanged FINAL)
    Q_PROPERTY(bool canTurnBack READ canTurnBack NOTIFY communityChanged FINAL)
    Q_PROPERTY(bool canTurnForward READ canTurnForward NOTIFY communityChanged FINAL)

    const Controllers controllers_;
    const std::function<void()> showMainWindow_;
    const std::function<void()> terminate_;
    PackImport import_;

    UI_PROPERTY(QString, importMessage, import_.importMessage)
    UI_PROPERTY(QString, importActivity, import_.importActivity)
    UI_PROPERTY(int, importPercent, import_.importPercent)

public:
    using Action = std::function<void()>;

    /// `showMainWindow` opens the Studio window; `terminate` asks the program to end.
    MenuBarViewModel(const Controllers& controllers, Action showMainWindow, Action terminate);

    [[nodiscard]] SettingsViewModel* settings() { return &settings_; }

    [[nodiscard]] StatusViewModel* status() { return &status_; }

    [[nodiscard]] QAbstractItemModel* builtInPacks() { return &builtInPacks_; }

    [[nodiscard]] QAbstractItemModel* communityPacks() { return &communityPacks_; }

    [[nodiscard]] bool hasCommunityLibrary() const { return community_.count > 0; }

    /// "COMMUNITY LIBRARY (9 SWITCHES)".
    [[nodiscard]] QString communityTitle() const;

    /// "2/3".
    [[nodiscard]] QString communityPosition() const;

    [[nodiscard]] bool canTurnBack() const { return community_.canTurnBack(); }

    [[nodiscard]] bool canTurnForward() const { return community_.canTurnForward(); }

    /// To be called each time the popover's content is shown: asks anew for the permission, the login item and the imported packs.
    Q_INVOKABLE void aboutToShow();

    Q_INVOKABLE void showMainWindow() { showMainWindow_(); }

    Q_INVOKABLE void terminate() { terminate_(); }

    /// The keys that can be tried, by their codes: one on the left, one in the middle, one on the right.
    enum QuickKey : quint16 {
        LeftKey = platform::key::kA,
        SpaceBar = platform::key::kSpace,
        RightKey = platform::key::kReturn
    };
    Q_ENUM(QuickKey)

    /// Lets a key be heard as if it were pressed; an integer, since Qt 6.4 compiles no QML that hands over an enumeration.
    Q_INVOKABLE void playKey(int key);
    Q_INVOKABLE void openAccessibilitySettings();
    Q_INVOKABLE void checkPermission();

    Q_INVOKABLE void openSoundPackImporter() { import_.openSoundPackImporter(); }

    Q_INVOKABLE void cancelImport() { import_.cancel(); }

    Q_INVOKABLE bool handleDrop(const QList<QUrl>& urls);
    Q_INVOKABLE void chooseBuiltInPack(int row);

    /// Chooses by row of the page shown.
    Q_INVOKABLE void chooseCommunityPack(int row);
    Q_INVOKABLE void turnBack();
    Q_INVOKABLE void turnForward();

    Q_SIGNAL void communityChanged();

private:
    using Rows = RowsModel<SoundPackRow>;

    void refreshRows();
    void refreshCommunity();

    SettingsViewModel settings_{controllers_};
    StatusViewModel status_{controllers_};
    Pages community_{.size = 4};
    Rows builtInPacks_;
    Rows communityPacks_;
    std::vector<Subscription> links_;
};

} // namespace tocca::ui
