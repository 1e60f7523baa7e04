#pragma once

#include "app/AppDelegate.h"
#include "app/AppService.h"
#include "app/Autosave.h"
#include "app/DocumentFile.h"
#include "app/Documents.h"
#include "app/EndSignals.h"
#include "app/Restoring.h"
#include "model/DemoDocument.h"

#include <QApplication>

#include <memory>
#include <string>

namespace velvane {

/// The program as a windowed application: its documents and what ties them to the desktop. Main
/// thread only.
class VelvaneApp {
public:
    /// How it was started.
    struct Start {
        std::vector<std::string> demos;
        /// In a process of its own, even when the program runs already.
        bool newInstance = false;
        /// By the session bus, which calls at once.
        bool service = false;
    };

    /// Opens each demo in a window, or a new one when there is none, and runs until the user quits;
    /// where the program runs already, that process opens them. Returns the exit status: 1 after
    /// one line on standard error when there is no display or a demo cannot be read.
    static int run(int &argc, char **argv, const Start &start);

    /// Is there one to open a window on?
    static bool hasDisplay();
    /// The application object on that display. When it does not answer, the process ends with
    /// status 1 after one line on standard error.
    static std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

private:
    /// A demo as it was read, with its file.
    using Read = std::pair<DocumentFile, std::unique_ptr<DemoDocument>>;

    VelvaneApp(Desktop &desktop, QSettings &settings, AppService &service);
    ~VelvaneApp();

    static std::optional<std::vector<Read>> read(const std::vector<std::string> &demos);
    void open(std::vector<Read> demos, bool service);
    void serve(AppService &service);
    void openNewIfNone();

    Documents m_documents;
    Autosave m_autosave;
    Restoring m_restoring;
    AppDelegate m_delegate;
    EndSignals m_endSignals;
};

} // namespace velvane
