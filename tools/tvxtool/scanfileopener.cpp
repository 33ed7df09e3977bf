#include "scanfileopener.h"

#include "toolcommand.h"

#include <QFileInfo>

#include <ios>

namespace TVX::TOOL {

QString absolutePath(const QString& argument)
{
    return QFileInfo(argument).absoluteFilePath();
}

namespace {
void requireReadableFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile() || !info.isReadable())
        throw CommandError(QStringLiteral("cannot open %1").arg(path).toStdString());
}
} // namespace

std::unique_ptr<CORE::TVXFile> openScanFile(const QString& argument)
{
    const QString path = absolutePath(argument);
    auto file = std::make_unique<CORE::TVXFile>(path);
    requireReadableFile(file->path());
    requireReadableFile(file->dataPath());
    if (!file->open(0))
        throw CommandError(QStringLiteral("cannot open %1").arg(path).toStdString());
    bool read = false;
    try {
        read = file->readHeader();
    } catch (const std::ios_base::failure& error) {
        throw CommandError(error.what());
    }
    file->close();
    if (!read)
        throw CommandError(QStringLiteral("not a scan file: %1").arg(path).toStdString());
    return file;
}

qint64 wholeNumberArgument(const QString& text)
{
    bool ok = false;
    const qint64 value = text.toLongLong(&ok, 10);
    if (!ok)
        throw UsageError("not a whole number");
    return value;
}

} // namespace TVX::TOOL
