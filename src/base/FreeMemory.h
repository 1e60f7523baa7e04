#pragma once

namespace velvane {

/// Hands memory that was freed back to the system, where the allocator can. Takes milliseconds;
/// for moments when much has just been freed.
void returnFreeMemory();

} // namespace velvane
