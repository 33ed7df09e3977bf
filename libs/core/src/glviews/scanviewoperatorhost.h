#pragma once

#include <QString>
#include <QtGlobal>

namespace TVX::CORE {

// What the operators ask of the main window: picks, the lens, the modified state of a scan's
// annotations, the item selection and the text of a new text item.
class ScanViewOperatorHost
{
public:
    virtual ~ScanViewOperatorHost() = default;

    // A picked cell: a row in the point table.
    virtual void pickCell(quint32 scanId, qint32 column, qint32 row) = 0;
    virtual void showLens(bool shown) = 0;
    virtual void showLensAt(quint32 scanId, qint32 column, qint32 row) = 0;
    // The scan's annotations differ from its annotation file; saving writes them.
    virtual void annotationsModified(quint32 scanId) = 0;
    virtual void clearItemSelection() = 0;
    // The text of a new text item; false when the user cancelled.
    virtual bool askItemText(QString& text) = 0;
};

} // namespace TVX::CORE
