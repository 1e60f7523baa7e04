#include "cli/CommandLine.h"

#include "language/Languages.h"

#include <CLI/CLI.hpp>

#include <new>

namespace velvane::cli {

namespace {

constexpr int success = 0;
constexpr int failure = 1;
constexpr int wrongUsage = 2;

// The parser's own words.
void translate(CLI::App &app)
{
    CLI::FormatterBase &words = *app.get_formatter();
    words.column_width(26);
    words.label("REQUIRED", "");
    words.label("TEXT", "");
    words.label("Usage", help("Usage"));
    words.label("Positionals", help("Positionals"));
    app.group(help("Subcommands"));
    app.option_defaults()->group(help("Options"));
    app.set_help_flag("-h,--help", help("Print this help message and exit"));
    app.set_version_flag("--version", "velvane " VELVANE_VERSION,
                         help("Display program version information and exit"));
}

// Chosen already, before any of these texts was looked up; see Languages::asked().
CLI::Validator isLanguage()
{
    return CLI::Validator(
        [](std::string &code) {
            const QStringList codes = Languages::available();
            if (codes.contains(QString::fromStdString(code)))
                return std::string();
            return tr("there are no texts in “%1”, only in %2")
                .arg(QString::fromStdString(code), codes.join(QStringLiteral(", ")))
                .toStdString();
        },
        "");
}

} // namespace

CommandLine::CommandLine(Console console)
    : m_console(console)
    , m_app(std::make_unique<CLI::App>(
          help(R"(Scripted screen demonstrations: a demo is a list of steps (move, click,
type, shortcut, wait and more) over a picture of the screen, rendered to an
H.264 movie or performed on the real desktop.)"),
          "velvane"))
{
    translate(*m_app);
    m_app->require_subcommand(0, 1);
    m_app->add_option("DEMO", m_demos, help("Demos to open in the editor"));
    m_app->add_flag("--new-instance", m_newInstance,
                    help("Open them in a process of its own, even when Velvane runs already"));
    // For the service file alone: an empty group hides it.
    m_app->add_flag("--service", m_service)->group("");
    m_app->add_option("--lang", m_language, help("The language of all texts, e.g. de"))
        ->type_name("CODE")
        ->check(isLanguage());
    addNew(*m_app, m_console, m_action);
    addInspect(*m_app, m_console, m_action);
    addState(*m_app, m_console, m_action);
    addFrame(*m_app, m_console, m_action);
    addExport(*m_app, m_console, m_action);
    addConvert(*m_app, m_console, m_action);
    addRun(*m_app, m_console, m_action);
    addRecord(*m_app, m_console, m_action);
    addDoctor(*m_app, m_console, m_action);
    // A subcommand is made with its help before it takes over the name of the group.
    for (CLI::App *command : m_app->get_subcommands(nullptr))
        command->get_help_ptr()->group(help("Options"));
    // Last, since subcommands take over the footer that stands when they are added.
    m_app->footer(help(R"(EXIT STATUS
  0  success
  1  failure, with one line on standard error; a live run that was stopped
  2  wrong usage
  130  an export stopped with Ctrl-C

Results go to standard output, messages and progress to standard error.
“velvane SUBCOMMAND --help” explains each subcommand.)"));
}

CommandLine::~CommandLine() = default;

std::optional<int> CommandLine::parse(int argc, const char *const *argv)
{
    try {
        m_app->parse(argc, argv);
        return {};
    } catch (const CLI::Success &help) {
        m_app->exit(help, m_console.out, m_console.err);
        return delivered() ? success : failure;
    } catch (const CLI::ParseError &error) {
        m_console.err << "velvane: " << printable(QString::fromLocal8Bit(error.what())) << ' '
                      << help("(see velvane --help)") << '\n';
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
        const int status = m_action();
        return delivered() ? status : failure;
    } catch (const CommandError &error) {
        m_console.err << printable(error.message()) << '\n';
        if (!error.detail().isEmpty())
            m_console.err << printable(error.detail()) << '\n';
    } catch (const std::bad_alloc &) {
        m_console.err << "velvane: " << help("not enough memory") << '\n';
    }
    return failure;
}

// What is printed may lie in a buffer until now.
bool CommandLine::delivered()
{
    if (m_console.out.flush())
        return true;
    m_console.err << "velvane: " << help("standard output cannot be written to") << '\n';
    return false;
}

} // namespace velvane::cli
