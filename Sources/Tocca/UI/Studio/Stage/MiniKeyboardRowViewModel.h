#pragma once

#include "UI/Studio/Stage/VisualKey.h"

#include <QAbstractListModel>
#include <QQmlEngine>

#include <optional>

namespace tocca::ui {

/// The caps of one row of the drawn keyboard, and which of them is lit. Threads: main.
class MiniKeyboardRowViewModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the keyboard")

public:
    enum Role { Label = Qt::UserRole, LabelSize, WidthRatio, IsActive };

    MiniKeyboardRowViewModel(std::span<const VisualKey> keys, QObject* parent);

    /// Lights the cap of `code` alone.
    void light(std::optional<std::uint16_t> code);

    /// The width of a standard key where the row has `available` points.
    Q_INVOKABLE double unitWidth(double available) const { return miniKeyboard::unitWidth(keys_, available); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    const std::span<const VisualKey> keys_;
    std::optional<std::uint16_t> litCode_;
};

} // namespace tocca::ui
