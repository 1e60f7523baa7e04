#pragma once

namespace velvane::cli {

/// While it lives, Ctrl-C, SIGTERM and the terminal's closing are noted instead of ending the
/// process at once. One at a time.
class Interrupt {
public:
    Interrupt();
    ~Interrupt();
    Interrupt(const Interrupt &) = delete;
    Interrupt &operator=(const Interrupt &) = delete;

    /// Thread-safe.
    bool happened() const;

    /// The status a process ends with for the signal that came: 130 for Ctrl-C.
    int exitStatus() const;
};

} // namespace velvane::cli
