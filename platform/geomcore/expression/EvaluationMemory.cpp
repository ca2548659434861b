#include "EvaluationMemory.h"

#include <algorithm>

namespace VKTab {

namespace {

constexpr std::size_t MostBytes = 4 * EvaluationMemory::MostCharacters;

} // namespace

bool EvaluationMemory::takes(std::string_view text)
{
    if (text.size() <= MostCharacters)
        return true;
    const bool taken = text.size() <= MostBytes && characterCount(text) <= MostCharacters;
    m_refused = m_refused || !taken;
    return taken;
}

bool EvaluationMemory::grows(std::size_t bytes)
{
    m_refused = m_refused || bytes > MostBytes;
    return bytes <= MostBytes;
}

std::size_t characterCount(std::string_view text)
{
    return std::size_t(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; // one that begins a character
    }));
}

} // namespace VKTab
