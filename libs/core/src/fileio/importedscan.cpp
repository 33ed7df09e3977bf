#include "fileio/importedscan.h"

namespace TVX::CORE {

std::unique_ptr<ImportedScan::Cursor> ImportedScan::readColumns(quint32, quint32) const
{
    return nullptr;
}

QByteArray ImportedScan::panorama() const
{
    return {};
}

} // namespace TVX::CORE
