#pragma once

#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "UI/Controllers.h"
#include "UI/NotchHUD/NotchAcousticHUDController.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Studio/Showroom/ShowroomCardsViewModel.h"
#include "UI/Studio/Showroom/ShowroomCatalogue.h"

#include <QQmlEngine>
#include <QStringList>

namespace tocca::ui {

/// What the showroom shows and does. Threads: main.
class ShowroomViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(tocca::ui::ShowroomCardsViewModel* cards READ cards CONSTANT FINAL)
    Q_PROPERTY(QList<QString> filterOptions READ filterOptions CONSTANT FINAL)
    Q_PROPERTY(int filterIndex READ filterIndex NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString searchText READ searchText NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY pageChanged FINAL)
    Q_PROPERTY(int currentPage READ currentPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canShowPreviousPage READ canShowPreviousPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canShowNextPage READ canShowNextPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY pageChanged FINAL)

    audio::AudioEngine& engine_;
    NotchAcousticHUDController& notchHUD_;

    UI_PROPERTY(bool, isNotchHUDEnabled, notchHUD_.isEnabled)

public:
    explicit ShowroomViewModel(const Controllers& controllers);

    [[nodiscard]] ShowroomCardsViewModel* cards() { return &cards_; }

    /// In capitals.
    [[nodiscard]] static QStringList filterOptions();
    [[nodiscard]] int filterIndex() const;

    [[nodiscard]] QString searchText() const { return toQString(catalogue_.searchText()); }

    [[nodiscard]] bool isEmpty() const { return catalogue_.allShowroomItems().empty(); }

    [[nodiscard]] int currentPage() const { return catalogue_.currentPage(); }

    [[nodiscard]] int pageCount() const { return catalogue_.pageCount(); }

    [[nodiscard]] bool canShowPreviousPage() const { return catalogue_.canShowPreviousPage(); }

    [[nodiscard]] bool canShowNextPage() const { return catalogue_.canShowNextPage(); }

    [[nodiscard]] QString summary() const { return toQString(catalogue_.summary()); }

    Q_INVOKABLE void toggleNotchHUD();
    Q_INVOKABLE void search(const QString& text);
    Q_INVOKABLE void chooseFilter(int index);
    Q_INVOKABLE void showPreviousPage();
    Q_INVOKABLE void showNextPage();

    /// Selects the sound of a card, and lets it be heard.
    Q_INVOKABLE void select(int row);

    Q_SIGNAL void pageChanged();

private:
    void refresh();

    ShowroomCatalogue catalogue_;
    ShowroomCardsViewModel cards_{engine_};
    Subscription packLink_;
    Subscription customPackLink_;
    Subscription switchTypeLink_;
};

} // namespace tocca::ui
