#pragma once

// Annotation documents for the annotation and tool tests.
#include <QByteArray>

namespace TVX::TEST {

// An annotation file around `body`, headed as the writer heads it.
inline QByteArray viewerDocument(const QByteArray& body, const QByteArray& version = "2.0")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE tvxscanviewer>\n<tvxviewerscene version=\"" + version
           + "\">\n" + body + "</tvxviewerscene>\n";
}

} // namespace TVX::TEST
