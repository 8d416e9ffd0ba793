#include "digest/SecretText.h"

#include "digest/Wipe.h"

#include <sys/mman.h>

#include <algorithm>
#include <new>
#include <span>
#include <utility>

namespace zelto {
namespace {

constexpr std::size_t Bytes = SecretText::Capacity * sizeof(char16_t);

char16_t* newPage() {
    constexpr int NoFile = -1;
    void* const page =
        ::mmap(nullptr, Bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, NoFile, 0);
    if (page == MAP_FAILED) {
        throw std::bad_alloc();
    }
    // Both make the page better, and neither can be had everywhere.
    (void)::mlock(page, Bytes);
    (void)::madvise(page, Bytes, MADV_DONTDUMP);
    return static_cast<char16_t*>(page);
}

} // namespace

SecretText::SecretText(std::u16string_view text) {
    assign(text);
}

SecretText::SecretText(const SecretText& other) {
    assign(other.view());
}

SecretText::SecretText(SecretText&& other) noexcept
    : m_text(std::exchange(other.m_text, nullptr)), m_size(std::exchange(other.m_size, 0)) {}

SecretText& SecretText::operator=(const SecretText& other) {
    if (this != &other) {
        assign(other.view());
    }
    return *this;
}

SecretText& SecretText::operator=(SecretText&& other) noexcept {
    if (this != &other) {
        giveBack();
        m_text = std::exchange(other.m_text, nullptr);
        m_size = std::exchange(other.m_size, 0);
    }
    return *this;
}

SecretText::~SecretText() {
    giveBack();
}

void SecretText::assign(std::u16string_view text) {
    clear();
    (void)insert(0, text);
}

std::size_t SecretText::insert(std::size_t position, std::u16string_view text) {
    const std::size_t at = std::min(position, m_size);
    const std::size_t count = std::min(text.size(), Capacity - m_size);
    if (count == 0) {
        return 0;
    }
    if (m_text == nullptr) {
        m_text = newPage();
    }
    std::move_backward(m_text + at, m_text + m_size, m_text + m_size + count);
    std::copy_n(text.begin(), count, m_text + at);
    m_size += count;
    return count;
}

void SecretText::erase(std::size_t position, std::size_t count) {
    if (position >= m_size) {
        return;
    }
    const std::size_t gone = std::min(count, m_size - position);
    std::move(m_text + position + gone, m_text + m_size, m_text + position);
    m_size -= gone;
    wipe(std::span(m_text + m_size, gone));
}

void SecretText::giveBack() noexcept {
    if (m_text != nullptr) {
        clear();
        ::munmap(m_text, Bytes);
    }
}

} // namespace zelto
