#include "cli/ProgressBar.h"

#include "cli/Console.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace velvane::cli {

namespace {

constexpr Seconds betweenDrawings = 0.05s;
constexpr int cells = 30;

template <typename... Values>
std::string formatted(const char *format, Values... values)
{
    std::array<char, 160> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

std::string bar(double fraction)
{
    const int filled = static_cast<int>(std::lround(fraction * cells));
    std::string text;
    for (int i = 0; i < cells; ++i)
        text += i < filled ? "━" : "─";
    return text;
}

} // namespace

ProgressBar::ProgressBar(std::ostream &out, bool interactive, qint64 count, std::string unit)
    : m_out(out)
    , m_interactive(interactive)
    , m_count(static_cast<double>(count))
    , m_unit(std::move(unit))
{}

ProgressBar::~ProgressBar()
{
    if (m_interactive && m_width > 0)
        m_out << '\n' << std::flush;
}

void ProgressBar::show(double fraction, Seconds elapsed)
{
    if (m_interactive) {
        if (fraction < 1 && m_drawn >= 0s && elapsed - m_drawn < betweenDrawings)
            return;
        m_drawn = elapsed;
        drawBar(fraction, elapsed);
        return;
    }
    const int tenth = static_cast<int>(fraction * 10);
    if (tenth > m_tenth) {
        m_tenth = tenth;
        m_out << formatted("%3d %%", tenth * 10) << '\n' << std::flush;
    }
}

void ProgressBar::drawBar(double fraction, Seconds elapsed)
{
    const double rate = elapsed > 0s ? fraction * m_count / elapsed.count() : 0;
    const Seconds left = fraction > 0 ? elapsed * (1 - fraction) / fraction : 0s;
    std::string text =
        formatted(" %3d %%  %.0f %s/s  ", static_cast<int>(fraction * 100), rate, m_unit.c_str());
    text += (fraction < 1 ? tr("%1 left").arg(QString::fromStdString(readable(left)))
                          : tr("in %1").arg(QString::fromStdString(readable(elapsed))))
                .toStdString();
    // Blanks cover what a longer line left behind.
    const std::size_t width = text.size();
    if (width < m_width)
        text.append(m_width - width, ' ');
    m_width = width;
    m_out << '\r' << bar(fraction) << text << std::flush;
}

std::string readable(Seconds time)
{
    constexpr double longest = 359999; // 99 h 59 min
    const auto whole = static_cast<int>(std::clamp(std::ceil(time.count()), 0.0, longest));
    if (whole < 60)
        return tr("%1 s").arg(whole).toStdString();
    const QChar zero(u'0');
    if (whole < 3600)
        return tr("%1 min %2 s").arg(whole / 60).arg(whole % 60, 2, 10, zero).toStdString();
    return tr("%1 h %2 min").arg(whole / 3600).arg(whole / 60 % 60, 2, 10, zero).toStdString();
}

} // namespace velvane::cli
