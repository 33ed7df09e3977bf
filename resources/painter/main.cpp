// Build step: writes every image of the resource bundle below the folder given as argument,
// and beside them the resource collection file that lists them.
#include "iconpainter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageWriter>

#include <cstdio>

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: tvxiconpainter OUTPUT_DIR\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    QByteArray collection("<!DOCTYPE RCC>\n<RCC version=\"1.0\">\n<qresource prefix=\"/\">\n");
    for (const QString& path : IconPainter::resourcePaths()) {
        collection += "    <file>" + path.toUtf8() + "</file>\n";
        const QString file = out.filePath(path);
        QDir().mkpath(QFileInfo(file).absolutePath());
        QImageWriter writer(file);
        if (!writer.write(IconPainter::paint(path))) {
            std::fprintf(stderr, "cannot write %s: %s\n", qPrintable(file), qPrintable(writer.errorString()));
            return 1;
        }
    }
    collection += "</qresource>\n</RCC>\n";
    QFile qrc(out.filePath(QStringLiteral("tvxresources.qrc")));
    if (!qrc.open(QIODevice::WriteOnly) || qrc.write(collection) != collection.size()) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(qrc.fileName()));
        return 1;
    }
    return 0;
}
