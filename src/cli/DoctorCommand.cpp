#include "cli/Columns.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "cli/SessionReport.h"

#include <CLI/CLI.hpp>

namespace velvane::cli {

namespace {

using Report = std::vector<DesktopFact>;

Json reportJson(const Report &report)
{
    Json rows = Json::array();
    for (const DesktopFact &fact : report)
        rows.push_back({{"what", json(fact.what)},
                        {"works", fact.remedy.isEmpty()},
                        {"state", json(fact.state)},
                        {"remedy", fact.remedy.isEmpty() ? Json() : json(fact.remedy)}});
    return rows;
}

void printReport(const Report &report, std::ostream &out)
{
    for (const DesktopFact &fact : report) {
        out << (fact.remedy.isEmpty() ? "✓ " : "✗ ")
            << Columns::left(fact.what + u' ', 20).toStdString() << printable(fact.state) << '\n';
        if (!fact.remedy.isEmpty())
            out << "  " << printable(fact.remedy) << '\n';
    }
}

int examine(bool asJson, Console &console)
{
    const std::unique_ptr<Desktop> desktop = Desktop::open();
    const Report report = sessionReport(*desktop);
    if (asJson)
        console.out << reportJson(report).dump(2) << '\n';
    else
        printReport(report, console.out);
    return 0;
}

} // namespace

void addDoctor(CLI::App &app, Console &console, Action &chosen)
{
    const auto asJson = std::make_shared<bool>(false);
    CLI::App *command = app.add_subcommand(
        "doctor", help("Say what this session can and cannot do, with remedies"));
    command->add_flag("--json", *asJson, help("Print one JSON array instead of lines"));
    command->footer(help(R"(DESCRIPTION
  Say what this session can and cannot do, a line for each capability, with
  the remedy below what is missing. Nothing is changed and nothing is shown on
  the screen.

JSON
  An object for each capability: what, works, state, remedy or null.

EXAMPLE
  velvane doctor --json | jq -r '.[] | select(.works | not) | .remedy')"));
    command->callback([&chosen, &console, asJson] {
        chosen = [&console, asJson] { return examine(*asJson, console); };
    });
}

} // namespace velvane::cli
