#pragma once

#include "app/AppDelegate.h"
#include "app/Documents.h"

#include <QApplication>

#include <memory>
#include <string>

namespace velvane {

/// The program as a windowed application: its documents and what ties them to the desktop. Main
/// thread only.
class VelvaneApp {
public:
    /// Opens each demo in a window, or a new one when there is none, and runs until the user quits.
    /// Returns the exit status: 1 after one line on standard error when there is no display or a
    /// demo cannot be read.
    static int run(int &argc, char **argv, const std::vector<std::string> &demos);

    /// Is there one to open a window on?
    static bool hasDisplay();
    /// The application object on that display. When it does not answer, the process ends with
    /// status 1 after one line on standard error.
    static std::unique_ptr<QApplication> makeApplication(int &argc, char **argv);

private:
    VelvaneApp(Desktop &desktop, QSettings &settings);

    bool open(const std::vector<std::string> &demos);

    Documents m_documents;
    AppDelegate m_delegate;
};

} // namespace velvane
