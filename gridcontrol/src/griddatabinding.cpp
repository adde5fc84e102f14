#include <gridcontrol/griddatabinding.h>

#include <gridcontrol/gridargs.h>
#include <gridcontrol/gridcolumn.h>
#include <gridcontrol/gridview.h>

namespace Qtitan {

GridModelDataBinding::GridModelDataBinding(GridColumn *column)
    : m_column(column)
{}

int GridModelDataBinding::columnIndex() const
{
    return m_column->index();
}

bool GridModelDataBinding::getValue(const GridRow &row, int role, QVariant &out) const
{
    const QModelIndex index = row.isValid() ? row.cell(columnIndex()).modelIndex() : QModelIndex();
    out = index.isValid() ? index.data(role) : QVariant();
    return index.isValid();
}

bool GridModelDataBinding::getValue(int modelRow, int role, QVariant &out) const
{
    const GridViewBase *view = m_column->view();
    return getValue(GridRow(view->model(), view->rootIndex(), modelRow), role, out);
}

void GridModelDataBinding::setSortRole(int role)
{
    if (m_sortRole == role)
        return;
    m_sortRole = role;
    emit sortRoleChanged();
}

GridModelDataBinding *EditorEventArgs::dataBinding() const
{
    return m_column->dataBinding();
}

} // namespace Qtitan
