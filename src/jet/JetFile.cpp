// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "JetFile.h"

#include "Refusal.h"
#include "core/machine/posix/Retried.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <numeric>
#include <sys/stat.h>
#include <unistd.h>

namespace tressel::jet {

namespace {

// What stands in a page's index of rows beside the place.
constexpr std::uint16_t deletedFlag = 0x8000;
constexpr std::uint16_t elsewhereFlag = 0x4000;
constexpr std::uint16_t placeMask = 0x1FFF;
constexpr std::size_t dataPage = 1;
constexpr std::uint8_t asciiEnd = 0x80;

std::uint64_t Number(Bytes bytes, std::size_t place, std::size_t count)
{
    const Bytes part = Part(bytes, place, count);
    std::uint64_t number = 0;
    for (std::size_t index = count; index-- > 0;)
        number = number << 8U | part[index];
    return number;
}

Header HeaderOf(int descriptor)
{
    HeaderBytes bytes{};
    for (std::size_t got = 0; got < bytes.size();) {
        const ssize_t piece = Retried([&] {
            return pread(descriptor, bytes.data() + got, bytes.size() - got, static_cast<off_t>(got));
        });
        if (piece < 0)
            throw Refusal{FailureCode::Damaged};
        if (piece == 0)
            throw Refusal{FailureCode::UnknownFormat};
        got += static_cast<std::size_t>(piece);
    }
    return ReadHeader(bytes);
}

std::uint64_t LengthOf(int descriptor)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        throw Refusal{FailureCode::Damaged};
    if (!S_ISREG(status.st_mode))
        throw Refusal{FailureCode::UnknownFormat};
    return static_cast<std::uint64_t>(status.st_size);
}

/// Null if the library can't open the file.
MdbHandle *Opened(const std::string &path)
{
    MdbHandle *opened = nullptr;
    do {
        errno = 0;
        opened = mdb_open(path.c_str(), MDB_NOFLAGS);
    } while (!opened && errno == EINTR);
    return opened;
}

/// Texts of newer files may have their letters in one byte each, where the highest one would be zero. A zero
/// byte changes between the two ways.
std::u16string Uncompressed(Bytes bytes)
{
    std::u16string text;
    text.reserve(bytes.size());
    bool isCompressed = true;
    for (std::size_t place = 0; place < bytes.size();) {
        if (bytes[place] == 0) {
            isCompressed = !isCompressed;
            ++place;
        } else if (isCompressed) {
            text.push_back(bytes[place++]);
        } else if (place + 1 < bytes.size()) {
            text.push_back(static_cast<char16_t>(bytes[place] | bytes[place + 1] << 8U));
            place += 2;
        } else {
            break;
        }
    }
    return text;
}

} // namespace

JetFile::JetFile(int descriptor)
    : header(HeaderOf(descriptor))
    , length(LengthOf(descriptor))
{
    const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
    handle.reset(Opened(path));
    close(descriptor);
    if (!handle)
        throw Refusal{FailureCode::Damaged};
    if (header.isOldest)
        OpenConversion();
}

/// Now, as later nothing can be loaded any more.
void JetFile::OpenConversion()
{
    iconv_t opened = iconv_open("UTF-16LE", ("CP" + std::to_string(header.codePage)).c_str());
    if (opened == reinterpret_cast<iconv_t>(-1))
        opened = iconv_open("UTF-16LE", "CP1252");
    if (opened != reinterpret_cast<iconv_t>(-1))
        conversion.reset(new iconv_t(opened));
    std::array<std::uint8_t, asciiEnd> letters{};
    std::iota(letters.begin(), letters.end(), std::uint8_t{0});
    leavesAscii = std::ranges::equal(Converted(letters), letters);
    if (conversion)
        iconv(*conversion, nullptr, nullptr, nullptr, nullptr); // back to its first state
}

void JetFile::CloseConversion::operator()(iconv_t *open) const
{
    iconv_close(*open);
    delete open;
}

Bytes JetFile::OtherPage(std::uint32_t number)
{
    if (!HasPage(number) || mdb_read_alt_pg(handle.get(), number) != handle->fmt->pg_size)
        throw Refusal{FailureCode::Damaged};
    return {handle->alt_pg_buf, PageLength()};
}

std::size_t JetFile::RowCount(Bytes page) const
{
    const std::size_t count = Number16(page, RowIndex());
    if (page[0] != dataPage || RowIndex() + 2 + count * 2 > page.size())
        throw Refusal{FailureCode::Damaged};
    return count;
}

RowPlace JetFile::PlaceOf(Bytes page, std::size_t row) const
{
    const std::size_t count = RowCount(page);
    if (row >= count)
        throw Refusal{FailureCode::Damaged};
    const std::uint16_t entry = Number16(page, RowIndex() + 2 + row * 2);
    const std::size_t start = entry & placeMask;
    const std::size_t end = row == 0 ? page.size() : Number16(page, RowIndex() + row * 2) & placeMask;
    if (start < RowIndex() + 2 + count * 2 || start > end || end > page.size())
        throw Refusal{FailureCode::Damaged};
    return {start, end - start, (entry & deletedFlag) != 0, (entry & elsewhereFlag) != 0};
}

std::u16string JetFile::Text(Bytes bytes)
{
    if (header.isOldest)
        return OldestText(bytes);
    if (bytes.size() >= 2 && bytes[0] == 0xFF && bytes[1] == 0xFE)
        return Uncompressed(bytes.subspan(2));
    std::u16string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t place = 0; place + 1 < bytes.size(); place += 2)
        text.push_back(static_cast<char16_t>(bytes[place] | bytes[place + 1] << 8U));
    return text;
}

std::u16string JetFile::OldestText(Bytes bytes)
{
    // Most texts have no other letters, and a conversion takes its time.
    if (leavesAscii && std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte < asciiEnd; }))
        return {bytes.begin(), bytes.end()};
    return Converted(bytes);
}

std::u16string JetFile::Converted(Bytes bytes)
{
    std::u16string text;
    std::string input(bytes.begin(), bytes.end());
    char *from = input.data();
    std::size_t left = input.size();
    while (left > 0) {
        std::array<char, 512> piece{};
        char *to = piece.data();
        std::size_t room = piece.size();
        const bool failed = !conversion || iconv(*conversion, &from, &left, &to, &room) == std::size_t(-1);
        const bool isFull = failed && conversion && errno == E2BIG;
        for (const char *at = piece.data(); at + 1 < to; at += 2) {
            text.push_back(static_cast<char16_t>(static_cast<unsigned char>(at[0])
                                                 | static_cast<unsigned char>(at[1]) << 8U));
        }
        if (failed && !isFull && left > 0) {
            // A byte that the code page doesn't know.
            text.push_back(u'\uFFFD');
            ++from;
            --left;
        }
    }
    return text;
}

std::uint16_t Number16(Bytes bytes, std::size_t place)
{
    return static_cast<std::uint16_t>(Number(bytes, place, 2));
}

std::uint32_t Number32(Bytes bytes, std::size_t place)
{
    return static_cast<std::uint32_t>(Number(bytes, place, 4));
}

std::uint64_t Number64(Bytes bytes, std::size_t place)
{
    return Number(bytes, place, 8);
}

Bytes Part(Bytes bytes, std::size_t place, std::size_t count)
{
    if (place > bytes.size() || count > bytes.size() - place)
        throw Refusal{FailureCode::Damaged};
    return bytes.subspan(place, count);
}

} // namespace tressel::jet
