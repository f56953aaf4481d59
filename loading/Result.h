// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <utility>
#include <variant>

namespace loading {

/// A value, or the failure that stood in its way.
template <class T, class F> class Result
{
public:
    Result(T value) // NOLINT(google-explicit-constructor): `return value;` is the point
        : mContent(std::in_place_index<0>, std::move(value))
    { }
    Result(F failure) // NOLINT(google-explicit-constructor): likewise
        : mContent(std::in_place_index<1>, std::move(failure))
    { }

    explicit operator bool() const { return mContent.index() == 0; }

    /// Only with a value.
    T &value() & { return std::get<0>(mContent); }
    const T &value() const & { return std::get<0>(mContent); }
    T &&value() && { return std::get<0>(std::move(mContent)); }

    /// Only without a value.
    const F &failure() const { return std::get<1>(mContent); }

private:
    std::variant<T, F> mContent;
};

} // namespace loading
