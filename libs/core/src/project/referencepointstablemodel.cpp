#include "project/referencepointstablemodel.h"

#include "scene/tvxsreferencesphere.h"
#include "fileio/tvxfile.h"
#include "fileio/tvxfilereferenceinfo.h"

namespace TVX::CORE {

ReferencePointsTableModel::ReferencePointsTableModel(std::shared_ptr<TVXFile> file, QObject* parent)
    : QAbstractTableModel(parent), m_file(std::move(file))
{
}

ReferencePointsTableModel::~ReferencePointsTableModel() = default;

int ReferencePointsTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_file ? 0 : m_file->referenceInfo().objectCount();
}

int ReferencePointsTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ReferencePointsTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !m_file)
        return {};
    const auto object = m_file->referenceInfo().object(index.row());
    if (!object || (role != Qt::DisplayRole && role != ValueRole))
        return {};
    const auto* point = dynamic_cast<const TVXSReferencePoint*>(object.get());
    const auto* sphere = dynamic_cast<const TVXSReferenceSphere*>(object.get());
    double value = 0.0;
    switch (index.column()) {
    case NameColumn:
        return role == Qt::DisplayRole ? QVariant(object->name()) : QVariant();
    case KindColumn:
        if (role != Qt::DisplayRole)
            return {};
        return sphere ? tr("Sphere") : point ? tr("Point") : QVariant();
    case XColumn:
    case YColumn:
    case ZColumn:
        if (!point)
            return {};
        value = point->values()[std::size_t(index.column() - XColumn)];
        break;
    case RadiusColumn:
        if (!sphere)
            return {};
        value = sphere->radius();
        break;
    default:
        return {};
    }
    return role == ValueRole ? QVariant(value) : QVariant(QString::number(value, 'f', 3));
}

QVariant ReferencePointsTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case NameColumn:
        return tr("Name");
    case KindColumn:
        return tr("Type");
    case XColumn:
        return tr("X [m]");
    case YColumn:
        return tr("Y [m]");
    case ZColumn:
        return tr("Z [m]");
    case RadiusColumn:
        return tr("Radius [m]");
    default:
        return {};
    }
}

} // namespace TVX::CORE
