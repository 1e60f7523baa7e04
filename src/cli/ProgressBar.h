#pragma once

#include "base/Seconds.h"

#include <QtGlobal>

#include <ostream>
#include <string>

namespace velvane::cli {

/// Shows the progress of counted work: a bar drawn over itself on a terminal, otherwise a line
/// for every tenth.
class ProgressBar {
public:
    ProgressBar(std::ostream &out, bool interactive, qint64 count, std::string unit);
    /// Ends the bar's line.
    ~ProgressBar();

    /// `fraction` done in [0, 1] after `elapsed` time.
    void show(double fraction, Seconds elapsed);

private:
    void drawBar(double fraction, Seconds elapsed);

    std::ostream &m_out;
    bool m_interactive;
    double m_count;
    std::string m_unit;
    Seconds m_drawn{-1};
    int m_tenth = 0;
    std::size_t m_width = 0;
};

/// "42 s", "3 min 05 s" or "2 h 10 min".
std::string readable(Seconds time);

} // namespace velvane::cli
