#include "app/Autosave.h"

#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "base/Background.h"
#include "editor/ContentView.h"
#include "model/DocumentError.h"

#include <QPointer>

namespace velvane {

namespace {

constexpr auto interval = std::chrono::seconds(30);

} // namespace

Autosave::Autosave(Documents &documents, const QString &folder)
    : m_documents(documents)
    , m_session(std::make_shared<KeptSession>(folder))
{
    connect(&documents, &Documents::windowsChanged, this, &Autosave::follow);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::tick);
    m_timer.start(interval);
    follow();
}

Autosave::~Autosave() = default;

void Autosave::follow()
{
    for (EditorWindow *window : m_documents.windows()) {
        if (!m_kept.try_emplace(window).second)
            continue;
        connect(window, &EditorWindow::documentChanged, this,
                [this, window] { onDocumentChanged(window); });
        // Only its address is left of the window then.
        connect(window, &QObject::destroyed, this, [this, window] {
            auto kept = m_kept.extract(window);
            if (!m_documents.isQuitting())
                goOn();
            if (!m_hasEnded)
                forget(kept.mapped());
        });
    }
}

void Autosave::onDocumentChanged(EditorWindow *window)
{
    if (!m_documents.isQuitting())
        goOn();
    if (!m_hasEnded && !window->unsaved())
        forget(m_kept[window]);
}

void Autosave::forget(Kept &kept)
{
    if (kept.turn == 0)
        return;
    m_session->forget(kept.id);
    kept = {};
}

bool Autosave::isKept(const Kept &kept, const DocState &state) const
{
    return kept.state && *kept.state == state && m_session->holds(kept.id);
}

KeptDemo Autosave::recordOf(const EditorWindow &window, const Kept &kept)
{
    return {.id = kept.id,
            .path = window.path(),
            .title = window.name(),
            .kept = QDateTime::currentDateTime(),
            .stamp = window.file().stamp(),
            .demo = {}};
}

// The end that keepAll() prepared did not come.
void Autosave::goOn()
{
    if (!std::exchange(m_hasEnded, false))
        return;
    m_session->setEnded(false);
    for (auto &[window, kept] : m_kept)
        if (!window->unsaved())
            forget(kept);
}

void Autosave::tick()
{
    // Windows on their way out may still wait for the end of an export.
    if (!m_documents.isQuitting())
        goOn();
    for (const auto &[window, kept] : m_kept)
        if (const auto state = window->unsaved(); state && !isKept(kept, *state))
            keep(window, *state);
}

QCoro::Task<> Autosave::keep(EditorWindow *window, DocState state)
{
    const QPointer<Autosave> alive(this);
    const QPointer<EditorWindow> open(window);
    Kept &kept = m_kept[window];
    kept.state = state;
    const QUuid id = kept.id;
    const int turn = ++kept.turn;
    KeptDemo record = recordOf(*window, kept);
    std::optional<QString> failure;
    const auto write = [session = m_session, state, turn, &record, &failure] {
        record.demo = ProjectFile::of(state);
        failure = session->keep(record, turn);
    };
    ++m_writing;
    co_await inBackground(write);
    if (!alive)
        co_return;
    if (failure && open) {
        open->content().statusLine().setMessage(
            tr("Unsaved changes could not be kept: %1.").arg(*failure));
        // The next tick tries again.
        if (m_kept[open].id == id && m_kept[open].turn == turn)
            m_kept[open].state.reset();
    }
    if (--m_writing == 0)
        Q_EMIT atRest();
}

bool Autosave::keepAll()
{
    bool allKept = true;
    QDateTime moment = QDateTime::currentDateTime();
    for (EditorWindow *window : m_documents.windows()) {
        Kept &kept = m_kept[window];
        window->content().fieldEditing().commitOpenGesture();
        const std::optional<DocState> unsaved = window->unsaved();
        // A new demo that nobody has touched is no loss.
        if (!unsaved && window->path().isEmpty())
            continue;
        KeptDemo record = recordOf(*window, kept);
        // They come back in this order.
        record.kept = moment = moment.addMSecs(1);
        if (unsaved)
            record.demo = ProjectFile::of(*unsaved);
        const auto failure = m_session->keep(record, ++kept.turn);
        kept.state = unsaved;
        allKept = allKept && !(unsaved && failure);
    }
    m_session->setEnded(allKept);
    m_hasEnded = allKept;
    return allKept;
}

EditorWindow *Autosave::open(const KeptDemo &demo)
{
    if (EditorWindow *window = m_documents.windowFor(demo.path)) {
        if (!demo.demo)
            return window;
        // What it has itself is kept, too.
        if (window->unsaved())
            return m_documents.addUnsaved(std::make_unique<DemoDocument>(*demo.demo), {});
        // It was opened meanwhile; what was kept is then one edit, which can be undone.
        window->replace(DemoDocument(*demo.demo).project().docState(), tr("Restore"));
        return window;
    }
    if (demo.demo)
        return m_documents.addUnsaved(std::make_unique<DemoDocument>(*demo.demo),
                                      DocumentFile(demo.path, demo.stamp));
    try {
        const DocumentFile file(demo.path);
        return m_documents.add(DemoDocument::read(file.path()), file);
    } catch (const DocumentError &) {
        return nullptr;
    }
}

bool Autosave::restore(const KeptDemo &demo, KeptSession &from)
{
    EditorWindow *window = open(demo);
    if (!window || !demo.demo) {
        // Its file, if it is still there, has all of it.
        from.forget(demo.id);
        return window;
    }
    Kept &kept = m_kept[window];
    forget(kept);
    // What was kept goes over to us without being written again, so it is on the disk all the time.
    if (m_session->take(demo.id, from))
        kept = {demo.id, 1, window->content().project().docState()};
    return true;
}

} // namespace velvane
