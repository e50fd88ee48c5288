#include "tests/model/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace algo::model {

namespace {

std::atomic<std::size_t> Count = 0;
std::atomic<std::size_t> LastSize = 0;

}  // namespace

std::size_t AllocationCount() { return Count; }
std::size_t LastAllocationSize() { return LastSize; }

void* Take(std::size_t size) {
  ++Count;
  LastSize = size;
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace algo::model

void* operator new(std::size_t size) { return algo::model::Take(size); }
void* operator new[](std::size_t size) { return algo::model::Take(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
