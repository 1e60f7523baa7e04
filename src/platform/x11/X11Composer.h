#pragma once

#include <QByteArray>
#include <QString>

#include <xkbcommon/xkbcommon-compose.h>

#include <memory>

namespace velvane {

/// Dead keys and compose sequences, as the tables of the user's language and ~/.XCompose have
/// them. One thread at a time.
class X11Composer {
public:
    /// `locale` such as "de_DE.UTF-8"; where it has no table for all of Unicode, English does.
    explicit X11Composer(const QByteArray &locale);

    enum class Outcome {
        /// The symbol is in no sequence: it means what it means.
        plain,
        /// A sequence has begun or goes on; nothing is typed yet.
        pending,
        /// The sequence is complete: text() is what it types.
        composed,
    };
    /// Takes the next symbol. One that fits no sequence begun before drops that and stands alone.
    Outcome feed(xkb_keysym_t symbol);

    QString text() const;
    /// Drops a sequence that has begun.
    void reset();

private:
    struct Release {
        void operator()(xkb_context *context) const { xkb_context_unref(context); }
        void operator()(xkb_compose_table *table) const { xkb_compose_table_unref(table); }
        void operator()(xkb_compose_state *state) const { xkb_compose_state_unref(state); }
    };
    std::unique_ptr<xkb_context, Release> m_context;
    std::unique_ptr<xkb_compose_table, Release> m_table;
    /// Null without any table.
    std::unique_ptr<xkb_compose_state, Release> m_state;
};

} // namespace velvane
