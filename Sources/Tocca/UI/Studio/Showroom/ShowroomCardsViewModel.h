#pragma once

#include "UI/Studio/Showroom/ShowroomItem.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <span>
#include <vector>

namespace tocca::audio {
class AudioEngine;
}

namespace tocca::ui {

/// The cards of one page of the showroom. A change keeps the rows that stay, so that the view keeps its cards. Threads: main.
class ShowroomCardsViewModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the showroom")

public:
    enum Role { Title = Qt::UserRole, Subtitle, Tag, Weight, Profile, IsCustom, IsSelected };

    explicit ShowroomCardsViewModel(audio::AudioEngine& engine);

    /// Shows copies of `items`.
    void show(std::span<const ShowroomItem* const> items);

    /// Tells that another sound was selected.
    void refreshSelection();

    [[nodiscard]] const ShowroomItem& item(int row) const { return items_.at(static_cast<std::size_t>(row)); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void changed(const QList<int>& roles);

    audio::AudioEngine& engine_;
    std::vector<ShowroomItem> items_;
};

} // namespace tocca::ui
