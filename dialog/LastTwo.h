// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <optional>
#include <utility>

namespace dialog {

/// The two values that were asked for last, each with its key: enough for two that read the same
/// document side by side in parts.
template <class Key, class Value> class LastTwo
{
public:
    /// Null when it is not among the two. Good until the next call.
    const Value *find(const Key &key)
    {
        if (mKept[1] && mKept[1]->first == key) {
            std::swap(mKept[0], mKept[1]);
        }
        return mKept[0] && mKept[0]->first == key ? &mKept[0]->second : nullptr;
    }

    /// Forgets the older one. `key` is not among the two.
    void put(Key key, Value value)
    {
        mKept[1] = std::move(mKept[0]);
        mKept[0].emplace(std::move(key), std::move(value));
    }

private:
    std::array<std::optional<std::pair<Key, Value>>, 2> mKept;
};

} // namespace dialog
