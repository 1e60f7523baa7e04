#include "platform/x11/watchdog/KeySymbols.h"

#include "platform/x11/XcbXkb.h"

#include <cstdlib>
#include <cstring>
#include <memory>

namespace velvane {

namespace {

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};

// The server's second key type: two levels, parted by Shift alone.
constexpr std::uint8_t twoLevels = 1;

// Keys as XKB sends and takes them: for each a head and its symbols.
class Writer {
public:
    void copy(const std::uint8_t *head, std::size_t size, int symbols)
    {
        m_bytes.insert(m_bytes.end(), head, head + size);
        m_symbols += symbols;
    }

    void write(const KeySymbols &key)
    {
        xcb_xkb_key_sym_map_t head{};
        if (key.isEmpty()) {
            append(&head, sizeof head);
            return;
        }
        head.kt_index[0] = twoLevels;
        head.groupInfo = 1;
        head.width = 2;
        head.nSyms = 2;
        append(&head, sizeof head);
        append(key.symbols.data(), sizeof key.symbols);
        m_symbols += 2;
    }

    const std::vector<std::uint8_t> &bytes() const { return m_bytes; }
    std::uint16_t symbols() const { return static_cast<std::uint16_t>(m_symbols); }

private:
    void append(const void *data, std::size_t size)
    {
        const auto *bytes = static_cast<const std::uint8_t *>(data);
        m_bytes.insert(m_bytes.end(), bytes, bytes + size);
    }

    std::vector<std::uint8_t> m_bytes;
    int m_symbols = 0;
};

using Map = std::unique_ptr<xcb_xkb_get_map_reply_t, Free>;

Map readSymbols(xcb_connection_t *connection, xcb_keycode_t first, std::uint8_t count)
{
    const auto asked =
        xcb_xkb_get_map(connection, XCB_XKB_ID_USE_CORE_KBD, 0, XCB_XKB_MAP_PART_KEY_SYMS, 0, 0,
                        first, count, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
    return Map(xcb_xkb_get_map_reply(connection, asked, nullptr));
}

// The keys between those that change keep what they have.
bool merge(const xcb_xkb_get_map_reply_t &map, std::span<const KeySymbols> keys, Writer &to)
{
    const auto *at = static_cast<const std::uint8_t *>(xcb_xkb_get_map_map(&map));
    const std::uint8_t *const end =
        reinterpret_cast<const std::uint8_t *>(&map) + 32 + std::size_t(map.length) * 4;
    for (int i = 0; i < map.nKeySyms; ++i) {
        xcb_xkb_key_sym_map_t head;
        if (std::size_t(end - at) < sizeof head)
            return false;
        std::memcpy(&head, at, sizeof head);
        const std::size_t size = sizeof head + std::size_t(head.nSyms) * sizeof(xcb_keysym_t);
        if (std::size_t(end - at) < size)
            return false;
        if (!keys.empty() && keys.front().key == map.firstKeySym + i) {
            to.write(keys.front());
            keys = keys.subspan(1);
        } else {
            to.copy(at, size, head.nSyms);
        }
        at += size;
    }
    return keys.empty();
}

} // namespace

bool changeSymbols(xcb_connection_t *connection, std::span<const KeySymbols> keys)
{
    if (keys.empty())
        return true;
    const xcb_keycode_t first = keys.front().key;
    const auto count = static_cast<std::uint8_t>(keys.back().key - first + 1);
    const Map map = readSymbols(connection, first, count);
    Writer writer;
    if (!map || !merge(*map, keys, writer))
        return false;
    const auto asked = xcb_xkb_set_map_checked(
        connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_MAP_PART_KEY_SYMS, 0, map->minKeyCode,
        map->maxKeyCode, 0, 0, first, count, writer.symbols(), 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
        0, 0, 0, 0, writer.bytes().data());
    const std::unique_ptr<xcb_generic_error_t, Free> fault(xcb_request_check(connection, asked));
    return !fault && xcb_connection_has_error(connection) == 0;
}

std::vector<KeySymbols> lentKeys(const HeldInput &held)
{
    std::vector<KeySymbols> keys;
    for (unsigned code = 0; code < 256; ++code) {
        const auto key = static_cast<xcb_keycode_t>(code);
        if (HeldInput::has(held.lent, key))
            keys.push_back({key, {}});
    }
    return keys;
}

} // namespace velvane
