#pragma once

#include "dictionary/filtered_words.hpp"

#include <QAbstractListModel>

namespace lexigrove
{

/// The rows of a `FilteredWords` for a list widget. It stores no items or texts itself.
class WordListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit WordListModel(const FilteredWords& words, QObject* parent = nullptr);

    /// The words were filled, cleared or searched.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    const FilteredWords& words_;
    int shownRows_ = 0;
};

} // namespace lexigrove
