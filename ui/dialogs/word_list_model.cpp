#include "ui/dialogs/word_list_model.hpp"

#include "ui/look/text.hpp"

namespace lexigrove
{

WordListModel::WordListModel(const FilteredWords& words, QObject* parent) : QAbstractListModel(parent), words_(words) {}

void WordListModel::refresh()
{
    beginResetModel();
    shownRows_ = words_.rowCount();
    endResetModel();
}

int WordListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : shownRows_;
}

QVariant WordListModel::data(const QModelIndex& index, int role) const
{
    // In the middle of an operation there can be fewer words than rows still shown.
    if (role != Qt::DisplayRole || !index.isValid() || index.row() >= words_.rowCount())
        return {};
    return toQString(words_.row(index.row()));
}

} // namespace lexigrove
