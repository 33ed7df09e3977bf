#include "mainwindow/pointinfotableviewwidget.h"

#include "mainwindow/mysortfilterproxymodel.h"
#include "mainwindow/pointinfotablemodel.h"
#include "mainwindow/pointinfotableview.h"

#include <QHBoxLayout>
#include <QSpacerItem>
#include <QToolButton>
#include <QVBoxLayout>

namespace TVX::CORE {

struct PointInfoTableViewWidget::Private {
    PointInfoTableModel* model{nullptr};
    MySortFilterProxyModel* proxy{nullptr};
    PointInfoTableView* view{nullptr};
    QVBoxLayout* toolColumn{nullptr};
};

PointInfoTableViewWidget::PointInfoTableViewWidget(QWidget* parent)
    : QWidget(parent), d(std::make_unique<Private>())
{
    // The view first: children go in the order they came, so the view is gone before its models.
    d->view = new PointInfoTableView(this);
    d->model = new PointInfoTableModel(this);
    d->proxy = new MySortFilterProxyModel(this);
    d->proxy->setSourceModel(d->model);
    d->view->setModel(d->proxy);
    d->view->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);

    d->toolColumn = new QVBoxLayout;
    d->toolColumn->setContentsMargins(0, 0, 0, 0);
    d->toolColumn->setSpacing(0);
    d->toolColumn->addSpacerItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 5, 3, 5);
    layout->addLayout(d->toolColumn);
    layout->addWidget(d->view, 1);
}

PointInfoTableViewWidget::~PointInfoTableViewWidget() = default;

PointInfoTableModel* PointInfoTableViewWidget::model() const
{
    return d->model;
}

MySortFilterProxyModel* PointInfoTableViewWidget::proxyModel() const
{
    return d->proxy;
}

PointInfoTableView* PointInfoTableViewWidget::view() const
{
    return d->view;
}

QToolButton* PointInfoTableViewWidget::addToolButton(QAction* action)
{
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    // In front of the spacer, which stays last.
    d->toolColumn->insertWidget(d->toolColumn->count() - 1, button);
    return button;
}

} // namespace TVX::CORE
