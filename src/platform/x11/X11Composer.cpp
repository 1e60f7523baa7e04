#include "platform/x11/X11Composer.h"

#include <array>

namespace velvane {

namespace {

constexpr const char *fallback = "en_US.UTF-8";

// The tables of other encodings lack what those cannot write.
bool writesUnicode(const QByteArray &locale)
{
    const QByteArray lower = locale.toLower();
    return lower.contains("utf-8") || lower.contains("utf8");
}

xkb_compose_table *tableOf(xkb_context *context, const QByteArray &locale)
{
    return xkb_compose_table_new_from_locale(context, locale.constData(),
                                             XKB_COMPOSE_COMPILE_NO_FLAGS);
}

} // namespace

X11Composer::X11Composer(const QByteArray &locale)
    : m_context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES))
{
    if (!m_context)
        return;
    if (writesUnicode(locale))
        m_table.reset(tableOf(m_context.get(), locale));
    if (!m_table)
        m_table.reset(tableOf(m_context.get(), fallback));
    if (m_table)
        m_state.reset(xkb_compose_state_new(m_table.get(), XKB_COMPOSE_STATE_NO_FLAGS));
}

X11Composer::Outcome X11Composer::feed(xkb_keysym_t symbol)
{
    if (!m_state)
        return Outcome::plain;
    xkb_compose_state_feed(m_state.get(), symbol);
    // The symbol that breaks a sequence may begin another.
    if (xkb_compose_state_get_status(m_state.get()) == XKB_COMPOSE_CANCELLED)
        xkb_compose_state_feed(m_state.get(), symbol);
    switch (xkb_compose_state_get_status(m_state.get())) {
    case XKB_COMPOSE_COMPOSING:
        return Outcome::pending;
    case XKB_COMPOSE_COMPOSED:
        return Outcome::composed;
    case XKB_COMPOSE_NOTHING:
    case XKB_COMPOSE_CANCELLED:
        break;
    }
    return Outcome::plain;
}

QString X11Composer::text() const
{
    // The longest that a table may hold is 256 bytes.
    std::array<char, 257> utf8{};
    if (m_state)
        xkb_compose_state_get_utf8(m_state.get(), utf8.data(), utf8.size());
    return QString::fromUtf8(utf8.data());
}

void X11Composer::reset()
{
    if (m_state)
        xkb_compose_state_reset(m_state.get());
}

} // namespace velvane
