#pragma once

#include <cstddef>
#include <string_view>

namespace zelto {

/// A text that leaves no trace: it stands in a page of memory of its own, which is not moved while
/// the text grows, is locked where the system's limit allows, and is left out of core files. What
/// is taken out of it is overwritten, all of it when it goes. UTF-16, as the toolkit has it.
class SecretText {
public:
    /// In UTF-16 units; more than any password or key has. What is beyond is left out.
    static constexpr std::size_t Capacity = 1024;

    SecretText() = default;
    explicit SecretText(std::u16string_view text);
    SecretText(const SecretText& other);
    SecretText(SecretText&& other) noexcept;
    SecretText& operator=(const SecretText& other);
    SecretText& operator=(SecretText&& other) noexcept;
    ~SecretText();

    /// Valid until the text changes or goes.
    [[nodiscard]] std::u16string_view view() const { return {m_text, m_size}; }
    [[nodiscard]] std::size_t size() const { return m_size; }
    [[nodiscard]] bool isEmpty() const { return m_size == 0; }

    void assign(std::u16string_view text);
    /// Before the character at `position`; returns how many units found room.
    std::size_t insert(std::size_t position, std::u16string_view text);
    /// `count` units from `position` on, as far as there are so many.
    void erase(std::size_t position, std::size_t count);
    void clear() { erase(0, m_size); }

    friend bool operator==(const SecretText& left, const SecretText& right) {
        return left.view() == right.view();
    }

private:
    void giveBack() noexcept;

    /// Null until there is something to keep.
    char16_t* m_text = nullptr;
    std::size_t m_size = 0;
};

} // namespace zelto
