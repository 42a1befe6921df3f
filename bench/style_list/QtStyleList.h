#pragma once

#include "bench/style_list/NamedStyles.h"

#include <QAbstractListModel>
#include <QSortFilterProxyModel>
#include <QString>
#include <deque>

namespace Bench
{

/// A named style as a Qt application holds it.
struct QtNamedStyle
{
    QString name;
    bool isListed = false;                ///< Of the category that is listed.
    const QtNamedStyle* parent = nullptr; ///< Null for none.
};

/// The named styles as a model.
class QtStyleModel final : public QAbstractListModel
{
public:
    static constexpr int kStyleRole = Qt::UserRole; ///< A pointer to the QtNamedStyle.

    explicit QtStyleModel(const NamedStyles& named);

    [[nodiscard]] const QtNamedStyle& GetTarget() const { return *target; }

    /// The row that the target inherits from.
    [[nodiscard]] QModelIndex GetCurrent() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::deque<QtNamedStyle> styles; ///< A deque keeps the addresses of what it holds.
    const QtNamedStyle* target = nullptr;
    int currentRow = 0;
};

/// The styles of the listed category, without those that may not become the parent of a target.
class QtOfferedStyles final : public QSortFilterProxyModel
{
public:
    /// Filters anew. Null takes all of the category.
    void SetTarget(const QtNamedStyle* newTarget);

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    const QtNamedStyle* target = nullptr;
};

/// The lists of styles over proxy models.
class QtStyleList
{
public:
    explicit QtStyleList(const NamedStyles& named);

    /// Filters the styles that may become the parent of the target, and reads the rows that are shown.
    double Open();

    /// Filters these and the further styles, and reads the rows of both.
    double OpenWhole();

private:
    void ReadMain(RowSum& sum);
    void ReadFurther(RowSum& sum);

    QtStyleModel model;
    QtOfferedStyles offered;
    QtOfferedStyles all;
};

} // namespace Bench
