// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Header.h"

// The library's header wraps what it includes in extern "C", which the C++ parts of this one don't bear.
#include <glib.h>
// Kept behind it.
#include <cstddef>
#include <cstdint>
#include <mdbtools.h>
#include <memory>
#include <span>
#include <string>

namespace tressel::jet {

using Bytes = std::span<const std::uint8_t>;

/// A row of a page as the page's own index has it.
struct RowPlace {
    std::size_t start;
    std::size_t length;
    bool isDeleted; ///< or found through a pointer from elsewhere alone
    bool isPointer; ///< to where the row lies now
};

/// An open database file, page by page.
class JetFile {
public:
    /// Takes the descriptor over. Refuses what is no database of a known format, and what is protected.
    explicit JetFile(int descriptor);

    MdbHandle &Handle() const { return *handle; }
    bool IsOldest() const { return header.isOldest; }
    /// In bytes.
    std::uint64_t Length() const { return length; }
    std::size_t PageLength() const { return static_cast<std::size_t>(handle->fmt->pg_size); }

    /// Whether the file has all of a page.
    bool HasPage(std::uint32_t number) const { return (number + std::uint64_t{1}) * PageLength() <= length; }

    /// The page that the library read last.
    Bytes Page() const { return {handle->pg_buf, PageLength()}; }
    /// Another page, good until the next one is asked for; Page() stays. Refuses one that isn't there.
    Bytes OtherPage(std::uint32_t number);

    /// The rows of a data page. Refuses a page that can't be one.
    std::size_t RowCount(Bytes page) const;
    RowPlace PlaceOf(Bytes page, std::size_t row) const;

    /// Text from a file's bytes, in the file's own way of writing it.
    std::u16string Text(Bytes bytes);

private:
    struct Close {
        void operator()(MdbHandle *open) const { mdb_close(open); }
    };
    struct CloseConversion {
        void operator()(iconv_t *open) const;
    };

    std::size_t RowIndex() const { return handle->fmt->row_count_offset; }
    void OpenConversion();
    std::u16string OldestText(Bytes bytes);
    std::u16string Converted(Bytes bytes);

    Header header;
    std::uint64_t length = 0;
    std::unique_ptr<MdbHandle, Close> handle;
    std::unique_ptr<iconv_t, CloseConversion> conversion;
    bool leavesAscii = false; ///< the conversion, as it is
};

/// Lowest byte first; refuses what lies beyond the end.
std::uint16_t Number16(Bytes bytes, std::size_t place);
std::uint32_t Number32(Bytes bytes, std::size_t place);
std::uint64_t Number64(Bytes bytes, std::size_t place);

/// A part of some bytes; refuses one that reaches beyond them.
Bytes Part(Bytes bytes, std::size_t place, std::size_t count);

} // namespace tressel::jet
