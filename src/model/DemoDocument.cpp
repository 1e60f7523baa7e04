#include "model/DemoDocument.h"

#include "base/WholeFile.h"
#include "model/DocumentError.h"
#include "model/ProjectFile.h"
#include "model/propertylist/BinaryReader.h"
#include "model/propertylist/BinaryWriter.h"
#include "model/propertylist/XmlReader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace velvane {

namespace {

// Bytes; far more than a demo with the largest backdrop takes.
constexpr qint64 maxFileSize = qint64(1) << 30;

QString tr(const char *english)
{
    return QCoreApplication::translate("DemoDocument", english);
}

// Could this be a property list of either form? XML may start with a byte order mark or spaces.
bool looksReadable(QByteArrayView start)
{
    if (BinaryReader::recognises(start))
        return true;
    return QByteArrayView("<\xEF\xFE\xFF \t\r\n").contains(start.isEmpty() ? '\0' : start.front())
           || start.startsWith(QByteArrayView("\0<", 2));
}

PropertyList propertyList(const QByteArray &contents)
{
    if (!looksReadable(contents))
        throw DocumentError(tr("not a property list"));
    return BinaryReader::recognises(contents) ? BinaryReader::read(contents)
                                              : XmlReader::read(contents);
}

// What keeps a path from being opened as a file: opening a pipe or a device could hang or do harm.
std::optional<QString> obstacle(const QFileInfo &info)
{
    if (info.isDir())
        return tr("is a folder");
    if (!info.isFile())
        return tr("is not a regular file");
    return {};
}

QByteArray bytesOf(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw DocumentError(tr("no such file"));
    if (const auto found = obstacle(info))
        throw DocumentError(*found);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DocumentError(file.errorString());
    if (file.size() > maxFileSize)
        throw DocumentError(tr("too large, %1 bytes").arg(file.size()));
    constexpr qint64 aFew = 16;
    if (!looksReadable(file.peek(aFew)))
        throw DocumentError(tr("not a property list"));
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw DocumentError(file.errorString());
    return bytes;
}

} // namespace

DemoDocument::DemoDocument() : m_project(std::make_unique<Project>()) {}

DemoDocument::DemoDocument(const ProjectFile &file)
    : m_project(std::make_unique<Project>(file))
    , m_fileVersion(file.version)
{}

std::unique_ptr<DemoDocument> DemoDocument::read(const QString &path)
{
    return std::make_unique<DemoDocument>(readFile(path));
}

ProjectFile DemoDocument::readFile(const QString &path)
{
    return fileOf(bytesOf(path));
}

ProjectFile DemoDocument::fileOf(const QByteArray &contents)
{
    return ProjectFile::from(propertyList(contents));
}

ProjectFile DemoDocument::snapshot() const
{
    return m_project->fileSnapshot();
}

QByteArray DemoDocument::contents(const ProjectFile &file)
{
    return BinaryWriter::write(file.toPropertyList());
}

std::optional<QString> DemoDocument::write(const ProjectFile &file, const QString &path)
{
    const QFileInfo existing(path);
    if (existing.exists()) {
        if (auto found = obstacle(existing))
            return found;
    }
    if (const auto failure = WholeFile::write(path, contents(file)))
        return tr("cannot be written: %1").arg(*failure);
    return {};
}

} // namespace velvane
