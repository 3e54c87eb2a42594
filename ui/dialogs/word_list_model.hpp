#pragma once

#include "dictionary/word_view.hpp"

#include <QAbstractListModel>

namespace lexigrove
{

/// The rows of a `WordView` for a list widget. It stores no items or texts itself.
class WordListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit WordListModel(const WordView& words, QObject* parent = nullptr);

    /// The words were filled, cleared or searched.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    const WordView& words_;
    int shownRows_ = 0;
};

} // namespace lexigrove
