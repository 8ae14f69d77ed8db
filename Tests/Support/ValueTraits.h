#pragma once

#include <concepts>
#include <type_traits>

/// What every record promises: it can be copied, moved without a failure, and compared. For `static_assert`.
template <typename Record>
constexpr bool isValue = std::is_copy_constructible_v<Record>&& std::is_copy_assignable_v<Record>&&
    std::is_nothrow_move_constructible_v<Record>&& std::is_nothrow_move_assignable_v<Record>&&
        std::is_nothrow_destructible_v<Record>&& std::equality_comparable<Record>;
