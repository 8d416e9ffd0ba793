// Linked into the program, this takes the place of the C library's free() and realloc() for all
// that runs in it: whatever anybody gives back is overwritten. What is pasted, say, passes through
// the display's and the toolkit's buffers before it reaches us, and none of them is ours to wipe.
// Until there is a window to type or paste into, none of it holds a secret, and start-up, which
// gives back a lot, need not wait for it.

#include "digest/Wipe.h"

#include <malloc.h>

#include <cstddef>
#include <cstring>

// The C library's own, under the names that are meant for replacements.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);
extern "C" void __libc_free(void* memory);
// NOLINTEND(bugprone-reserved-identifier)

extern "C" void free(void* memory) {
    if (memory != nullptr && zelto::wipesHeap()) {
        ::explicit_bzero(memory, ::malloc_usable_size(memory));
    }
    __libc_free(memory);
}

extern "C" void* realloc(void* memory, std::size_t size) {
    if (memory == nullptr || !zelto::wipesHeap()) {
        return __libc_realloc(memory, size);
    }
    const std::size_t room = ::malloc_usable_size(memory);
    if (size == 0) {
        free(memory);
        return nullptr;
    }
    if (size <= room) {
        ::explicit_bzero(static_cast<std::byte*>(memory) + size, room - size);
        return __libc_realloc(memory, size);
    }
    // In a new place, so that the old one can be wiped; the library would leave it as it is.
    void* const moved = __libc_malloc(size);
    if (moved != nullptr) {
        std::memcpy(moved, memory, room);
        free(memory);
    }
    return moved;
}
