#include "mainwindow/mdipointcloudviewsubwindow.h"

#include "glviews/pointcloudviewglwidget.h"

#include <QCoreApplication>
#include <QMenu>
#include <QPixmap>
#include <QSignalMapper>

namespace TVX::CORE {

MDIPointcloudViewSubWindow::MDIPointcloudViewSubWindow(quint32 scanId, const QString& scanFilePath,
                                                       std::shared_ptr<TVXFile> file, const QColor& uniformColour,
                                                       QWidget* parent, Qt::WindowFlags flags)
    : MdiSubWindow(scanId, parent, flags),
      m_view(new PointcloudViewGLWidget(scanFilePath, std::move(file), nullptr, uniformColour))
{
    setWidget(m_view);
}

MDIPointcloudViewSubWindow::~MDIPointcloudViewSubWindow() = default;

void MDIPointcloudViewSubWindow::setContextMenu(QMenu* menu)
{
    if (menu) {
        menu->addSeparator();
        menu->addAction(tr("Reset up-vector"), m_view, &PointcloudViewGLWidget::initialView);
        QMenu* colours = menu->addMenu(tr("Color"));
        auto* mapper = new QSignalMapper(menu);
        const auto& palette = PointcloudViewGLWidget::palette();
        for (int i = 0; i < int(palette.size()); ++i) {
            QPixmap swatch(15, 15);
            swatch.fill(palette[std::size_t(i)].swatch);
            QAction* entry = colours->addAction(
                QIcon(swatch), QStringLiteral("%1: %2").arg(i).arg(palette[std::size_t(i)].name));
            connect(entry, &QAction::triggered, mapper, qOverload<>(&QSignalMapper::map));
            mapper->setMapping(entry, i);
        }
        connect(mapper, &QSignalMapper::mappedInt, m_view, &PointcloudViewGLWidget::setColor);
        menu->addAction(tr("Background Color"), m_view, qOverload<>(&PointcloudViewGLWidget::setClearColor));
    }
    MdiSubWindow::setContextMenu(menu);
}

} // namespace TVX::CORE
