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

// Bytes. A demo's weight is that of its backdrop: a large screen's picture takes less than half of
// this. Reading takes twice a binary file's bytes of memory; an XML file's three times for data and
// six times for a comment.
constexpr qint64 maxBinarySize = qint64(192) << 20;
constexpr qint64 maxXmlSize = qint64(72) << 20;

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

QString tooLarge(qint64 size)
{
    return tr("too large, %1 bytes").arg(size);
}

// What could not be read again is not written: it would take the place of what can.
std::optional<QString> writeReadable(const ProjectFile &file, const QString &path)
{
    if (file.steps.size() > ProjectFile::maxSteps)
        return tr("more than %1 steps").arg(ProjectFile::maxSteps);
    const QByteArray bytes = DemoDocument::contents(file);
    if (bytes.size() > maxBinarySize)
        return tooLarge(bytes.size());
    return WholeFile::write(path, bytes);
}

QByteArray bytesOf(QFile &file)
{
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw DocumentError(file.errorString());
    return bytes;
}

// Piece by piece: as text it takes twice its bytes already.
PropertyList xmlOf(QFile &file)
{
    try {
        return XmlReader::read(file);
    } catch (const DocumentError &) {
        // To the reader the file just ends there.
        if (file.error() != QFileDevice::NoError)
            throw DocumentError(file.errorString());
        throw;
    }
}

PropertyList propertyListAt(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw DocumentError(tr("no such file"));
    if (const auto found = obstacle(info))
        throw DocumentError(*found);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw DocumentError(file.errorString());
    constexpr qint64 aFew = 16;
    const QByteArray start = file.peek(aFew);
    const bool isBinary = BinaryReader::recognises(start);
    if (file.size() > (isBinary ? maxBinarySize : maxXmlSize))
        throw DocumentError(tooLarge(file.size()));
    if (!looksReadable(start))
        throw DocumentError(tr("not a property list"));
    return isBinary ? BinaryReader::read(bytesOf(file)) : xmlOf(file);
}

} // namespace

DemoDocument::DemoDocument() : m_project(std::make_unique<Project>()) {}

DemoDocument::DemoDocument(const ProjectFile &file)
    : m_project(std::make_unique<Project>(file))
    , m_fileVersion(file.version)
    , m_hasLostBackground(file.background && m_project->background().isNull())
{}

std::unique_ptr<DemoDocument> DemoDocument::read(const QString &path)
{
    return std::make_unique<DemoDocument>(readFile(path));
}

ProjectFile DemoDocument::readFile(const QString &path)
{
    return ProjectFile::from(propertyListAt(path));
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
    if (const auto failure = writeReadable(file, path))
        return tr("cannot be written: %1").arg(*failure);
    return {};
}

} // namespace velvane
