// Saves or keeps one version of a demo after the other, to be killed or failed meanwhile, and says
// which version is there.
//
// usage: keep-demos save FILE FIRST LAST | keep FOLDER FIRST LAST | saved FILE | kept FOLDER
// "save" and "keep" print the number of each version once it is written, and end with status 1 and
// the reason when one cannot be. "saved" and "kept" print the numbers of the versions that are
// there whole.

#include "app/DocumentFile.h"
#include "model/DemoDocument.h"
#include "model/DocumentError.h"
#include "model/KeptSession.h"

#include <QFile>

#include <iostream>

namespace velvane {

namespace {

// As many bytes as take a moment to write.
constexpr int stepCount = 200;

const QUuid id("{00000000-0000-4000-8000-000000000001}");

ProjectFile version(int number)
{
    ProjectFile file;
    file.canvasSize = {1280, 800};
    file.fps = number;
    const QString text = QString::number(number) + QString(1000, 'x');
    for (int i = 0; i < stepCount; ++i)
        file.steps.append({.kind = StepKind::type, .text = text + QString::number(i)});
    return file;
}

/// The number of the version; throws DocumentError when it is not whole.
int numberOf(const ProjectFile &file)
{
    const ProjectFile whole = version(file.fps);
    bool same = file.steps.size() == whole.steps.size();
    for (qsizetype i = 0; same && i < whole.steps.size(); ++i)
        same = file.steps[i].text == whole.steps[i].text;
    if (!same)
        throw DocumentError(QStringLiteral("parts of several versions"));
    return file.fps;
}

int writeAll(int first, int last, const std::function<std::optional<QString>(int)> &write)
{
    for (int number = first; number <= last; ++number) {
        if (const auto reason = write(number)) {
            std::cerr << reason->toStdString() << '\n';
            return 1;
        }
        std::cout << number << std::endl;
    }
    return 0;
}

int save(const QString &path, int first, int last)
{
    DocumentFile file(path);
    return writeAll(first, last, [&](int number) -> std::optional<QString> {
        const auto refusal = file.write(version(number));
        if (!refusal)
            return {};
        return refusal->isChanged ? QStringLiteral("others have changed it") : refusal->reason;
    });
}

int keep(const QString &folder, int first, int last)
{
    // Without an orderly end, as in a crash: what is kept stays.
    auto *session = new KeptSession(folder);
    return writeAll(first, last, [&](int number) {
        return session->keep({.id = id,
                              .path = {},
                              .title = QStringLiteral("demo"),
                              .kept = QDateTime::currentDateTime(),
                              .stamp = {},
                              .demo = version(number)},
                             number);
    });
}

int kept(const QString &folder)
{
    for (const KeptSession::Ptr &session : KeptSession::left(folder))
        for (const KeptDemo &demo : session->demos())
            std::cout << numberOf(*demo.demo) << std::endl;
    return 0;
}

int run(const QStringList &arguments)
{
    const QString &what = arguments.value(0);
    const QString path = arguments.value(1);
    const int first = arguments.value(2).toInt();
    const int last = arguments.value(3).toInt();
    if (what == u"save")
        return save(path, first, last);
    if (what == u"keep")
        return keep(path, first, last);
    if (what == u"kept")
        return kept(path);
    std::cout << numberOf(DemoDocument::readFile(path)) << std::endl;
    return 0;
}

} // namespace

} // namespace velvane

int main(int argc, char **argv)
{
    try {
        QStringList arguments;
        for (int i = 1; i < argc; ++i)
            arguments.append(QFile::decodeName(argv[i]));
        return velvane::run(arguments);
    } catch (const velvane::DocumentError &error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
