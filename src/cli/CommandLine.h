#pragma once

#include "cli/Commands.h"

#include <memory>
#include <vector>

namespace velvane::cli {

/// The program's arguments: subcommands, or demos to open in the editor.
class CommandLine {
public:
    explicit CommandLine(Console console = {});
    ~CommandLine();

    /// Reads the arguments. Returns an exit status when there is nothing more to do: after help
    /// (0, or 1 when it cannot be printed) and after wrong usage (2, with one line on err).
    std::optional<int> parse(int argc, const char *const *argv);

    /// Was a subcommand named? Otherwise demos() are to be opened in a window.
    bool hasCommand() const { return bool(m_action); }
    /// Does the subcommand show something on the desktop? It then needs a QApplication.
    bool showsPanel() const;
    const std::vector<std::string> &demos() const { return m_demos; }
    /// Is a process of its own wanted, even when the program runs already?
    bool newInstance() const { return m_newInstance; }
    /// Has the session bus started the program, to call it at once?
    bool service() const { return m_service; }

    /// Runs the subcommand and returns its exit status; needs the application object. What goes
    /// wrong is one line on err and status 1.
    int run();

private:
    /// Has all of the results arrived? Says so on err if not.
    bool delivered();

    Console m_console;
    std::unique_ptr<CLI::App> m_app;
    Action m_action;
    std::vector<std::string> m_demos;
    bool m_newInstance = false;
    bool m_service = false;
    std::string m_language;
};

} // namespace velvane::cli
