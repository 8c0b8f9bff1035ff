#pragma once

#include <cstddef>

/// Counts what this thread takes from the heap, be it by `new` or by Qt's own malloc, as long as it lives.
/// One at a time.
class AllocationCount
{
public:
    AllocationCount();
    ~AllocationCount();
    AllocationCount(const AllocationCount&) = delete;
    AllocationCount& operator=(const AllocationCount&) = delete;

    [[nodiscard]] int all() const;
    /// Those of exactly that many bytes.
    [[nodiscard]] int ofSize(std::size_t size) const;
};
