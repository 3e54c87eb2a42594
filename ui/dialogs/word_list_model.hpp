#pragma once

#include "dictionary/word_view.hpp"

#include <QAbstractListModel>

namespace lexigrove
{

/// The rows of a `WordView` for a list widget. It holds no item and no text of its own.
class WordListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit WordListModel(const WordView& words, QObject* parent = nullptr);

    /// The view was filled, emptied or searched.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    const WordView& words_;
    int shownRows_ = 0;
};

} // namespace lexigrove
