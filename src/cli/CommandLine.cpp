#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <new>

namespace velvane::cli {

namespace {

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;

constexpr auto purpose = R"(Scripted screen demonstrations: a demo is a list of steps (move, click,
type, shortcut, wait and more) over a picture of the screen, rendered to an
H.264 movie or performed on the real desktop.)";

constexpr auto closing = R"(EXIT STATUS
  0  success
  1  failure, with one line on standard error; a live run that was stopped
  2  wrong usage
  130  an export stopped with Ctrl-C

Results go to standard output, messages and progress to standard error.
“velvane SUBCOMMAND --help” explains each subcommand.)";

} // namespace

CommandLine::CommandLine(Console console)
    : m_console(console)
    , m_app(std::make_unique<CLI::App>(purpose, "velvane"))
{
    m_app->set_version_flag("--version", "velvane " VELVANE_VERSION);
    m_app->require_subcommand(0, 1);
    m_app->get_formatter()->column_width(26);
    m_app->get_formatter()->label("REQUIRED", "");
    m_app->get_formatter()->label("TEXT", "");
    m_app->add_option("DEMO", m_demos, "Demos to open in the editor");
    m_app->add_flag("--new-instance", m_newInstance,
                    "Open them in a process of its own, even when Velvane runs already");
    // For the service file alone: an empty group hides it.
    m_app->add_flag("--service", m_service)->group("");
    addNew(*m_app, m_console, m_action);
    addInspect(*m_app, m_console, m_action);
    addState(*m_app, m_console, m_action);
    addFrame(*m_app, m_console, m_action);
    addExport(*m_app, m_console, m_action);
    addConvert(*m_app, m_console, m_action);
    addRun(*m_app, m_console, m_action);
    addRecord(*m_app, m_console, m_action);
    addDoctor(*m_app, m_console, m_action);
    // Last, since subcommands take over the footer that stands when they are added.
    m_app->footer(closing);
}

CommandLine::~CommandLine() = default;

std::optional<int> CommandLine::parse(int argc, const char *const *argv)
{
    try {
        m_app->parse(argc, argv);
        return {};
    } catch (const CLI::Success &help) {
        m_app->exit(help, m_console.out, m_console.err);
        return success;
    } catch (const CLI::ParseError &error) {
        m_console.err << "velvane: " << printable(QString::fromLocal8Bit(error.what()))
                      << " (see velvane --help)\n";
        return wrongUsage;
    }
}

bool CommandLine::showsPanel() const
{
    return m_app->got_subcommand("record");
}

int CommandLine::run()
{
    try {
        return m_action();
    } catch (const CommandError &error) {
        m_console.err << error.what() << '\n';
    } catch (const std::bad_alloc &) {
        m_console.err << "velvane: not enough memory\n";
    }
    return failure;
}

} // namespace velvane::cli
