#pragma once

namespace velvane {

/// Has all threads take their memory from one heap. For the start of a program that runs long:
/// otherwise each thread has one of its own, and what it has freed at its end comes never back.
void useOneHeap();

/// Hands memory that was freed back to the system, where the allocator can. Takes milliseconds;
/// for moments when much has just been freed.
void returnFreeMemory();

} // namespace velvane
