#pragma once

#include "Audio/AudioEngine.h"
#include "Audio/Packs/SoundPackLoader.h"
#include "UI/Controllers.h"
#include "UI/Quick/RowsModel.h"
#include "UI/Quick/UiProperty.h"
#include "UI/Studio/Showroom/ShowroomCatalogue.h"

#include <QQmlEngine>
#include <QStringList>

#include <array>

namespace tocca::ui {

/// A sound as its card shows it.
struct ShowroomCard {
    QString title;
    QString subtitle;
    QString tag; // in capitals, as the profile
    QString weight;
    QString profile;
    bool isCustom = false;
    bool isSelected = false;

    bool operator==(const ShowroomCard&) const = default;
};

/// The model of the showroom: the cards of a page, what narrows them down, and the choice among them.
///
/// Threads: main.
/// Errors: a row or filter that there is not changes nothing.
class ShowroomViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the window")
    Q_PROPERTY(QAbstractItemModel* cards READ cards CONSTANT FINAL)
    Q_PROPERTY(QList<QString> filterOptions READ filterOptions CONSTANT FINAL)
    Q_PROPERTY(int filterIndex READ filterIndex NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString searchText READ searchText NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY pageChanged FINAL)
    Q_PROPERTY(int currentPage READ currentPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(int pageCount READ pageCount NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canShowPreviousPage READ canShowPreviousPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(bool canShowNextPage READ canShowNextPage NOTIFY pageChanged FINAL)
    Q_PROPERTY(QString summary READ summary NOTIFY pageChanged FINAL)

public:
    explicit ShowroomViewModel(const Controllers& controllers);

    [[nodiscard]] QAbstractItemModel* cards() { return &cards_; }

    /// In capitals.
    [[nodiscard]] static QStringList filterOptions();
    [[nodiscard]] int filterIndex() const;

    [[nodiscard]] QString searchText() const { return toQString(catalogue_.searchText()); }

    [[nodiscard]] bool isEmpty() const { return catalogue_.allShowroomItems().empty(); }

    [[nodiscard]] int currentPage() const { return static_cast<int>(catalogue_.pages().shown()); }

    [[nodiscard]] int pageCount() const { return static_cast<int>(catalogue_.pages().total()); }

    [[nodiscard]] bool canShowPreviousPage() const { return catalogue_.pages().canTurnBack(); }

    [[nodiscard]] bool canShowNextPage() const { return catalogue_.pages().canTurnForward(); }

    [[nodiscard]] QString summary() const { return toQString(catalogue_.summary()); }

    Q_INVOKABLE void search(const QString& text);
    Q_INVOKABLE void chooseFilter(int index);
    Q_INVOKABLE void showPreviousPage();
    Q_INVOKABLE void showNextPage();

    /// Selects the sound of a card, and lets it be heard.
    Q_INVOKABLE void select(int row);

    Q_SIGNAL void pageChanged();

private:
    void refreshCards();
    void refreshPage();

    audio::AudioEngine& engine_;
    ShowroomCatalogue catalogue_;
    RowsModel<ShowroomCard> cards_;
    std::array<Subscription, 3> links_;
};

} // namespace tocca::ui
