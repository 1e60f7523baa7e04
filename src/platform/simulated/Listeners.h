#pragma once

#include "platform/Subscription.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace velvane {

/// Those who listen to one thing; each leaves when its token is destroyed, which may be later than
/// this. One thread at a time.
template <typename Listener>
class Listeners {
public:
    Token add(Listener listener)
    {
        const auto entry = std::make_shared<const Listener>(std::move(listener));
        m_list->push_back(entry);
        return std::make_unique<Membership>(m_list, entry);
    }

    /// Visits those that listen now, in the order they came; one that leaves meanwhile is left out.
    template <typename Visit>
    void each(Visit visit) const
    {
        const List listeners = *m_list;
        for (const Entry &listener : listeners) {
            if (std::ranges::find(*m_list, listener) != m_list->end())
                visit(*listener);
        }
    }

    int count() const { return int(m_list->size()); }

private:
    using Entry = std::shared_ptr<const Listener>;
    using List = std::vector<Entry>;

    class Membership final : public Subscription {
    public:
        Membership(std::shared_ptr<List> list, Entry entry)
            : m_list(std::move(list))
            , m_entry(std::move(entry))
        {}
        ~Membership() override { std::erase(*m_list, m_entry); }

    private:
        const std::shared_ptr<List> m_list;
        const Entry m_entry;
    };

    // Shared with the tokens, which may outlive this.
    std::shared_ptr<List> m_list = std::make_shared<List>();
};

} // namespace velvane
