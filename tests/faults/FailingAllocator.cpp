#include "FailingAllocator.h"

#include <cstdlib>
#include <new>

namespace {

long countdown = 0;
bool failed = false;
long blocks = 0;

void* allocate(std::size_t size) noexcept {
    if (countdown > 0 && --countdown == 0) {
        failed = true;
        return nullptr;
    }
    void* const block = std::malloc(size > 0 ? size : 1);
    blocks += block ? 1 : 0;
    return block;
}

void* allocateOrThrow(std::size_t size) {
    if (void* const block = allocate(size))
        return block;
    throw std::bad_alloc();
}

void release(void* block) noexcept {
    blocks -= block ? 1 : 0;
    std::free(block);
}

} // namespace

namespace failing_allocator {

void failAt(long number) {
    countdown = number;
    failed = false;
}

bool hasFailed() {
    return failed;
}

long blocksInUse() {
    return blocks;
}

} // namespace failing_allocator

void* operator new(std::size_t size) {
    return allocateOrThrow(size);
}
void* operator new[](std::size_t size) {
    return allocateOrThrow(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocate(size);
}
void operator delete(void* block) noexcept {
    release(block);
}
void operator delete[](void* block) noexcept {
    release(block);
}
void operator delete(void* block, std::size_t) noexcept {
    release(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    release(block);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
    release(block);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
    release(block);
}
