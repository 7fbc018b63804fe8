// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// What tressel-jet and the program that starts it say to each other. Both sides speak in frames: the length
/// of the content (32 bits), the kind (8 bits), the content. Numbers have their lowest byte first, texts are
/// their length in bytes (32 bits) and UTF-16.
///
/// One question comes in over standard input. The answer goes out over standard output: Hello, then what
/// was asked for, then End with its count. Whoever reads an answer that ends without End knows that it
/// isn't whole; Failed may come at any place and is the last frame then.
namespace tressel::jet {

inline constexpr std::uint8_t ProtocolVersion = 2;
inline constexpr std::size_t FrameHeadLength = 5;
/// The longest content that either side takes.
inline constexpr std::uint32_t LongestFrame = 128U << 20U;
/// The longest question, with its head: what a pipe holds before anybody reads it.
inline constexpr std::size_t LongestQuestion = 64U << 10U;
/// The descriptor under which tressel-jet finds the file, open for reading.
inline constexpr int FileDescriptor = 3;

enum class FrameKind : std::uint8_t {
    // Questions: the road (8 bits, 1 for the older one), the table, the number of fields (16 bits), the
    // fields.
    AskObjects = 1,
    AskFields,
    AskValues,
    // Answers.
    Hello, ///< the protocol version (8 bits)
    Object, ///< ObjectKind (8 bits), name
    Field, ///< type code (16 bits), size (32 bits), name
    Opened, ///< what was asked for is open: the list of objects, or the table whose values come then
    Value, ///< ValueKind (8 bits) and the value; more of the same row follow
    LastValue, ///< the same for the last value of a row, also if it is the only one
    Failed, ///< FailureCode (8 bits), which one of the fields is missing (16 bits, 0 for all other codes)
    End, ///< how many frames of what was asked for came before (64 bits)
};

enum class ObjectKind : std::uint8_t { Table = 1, View, LinkedTable, SystemTable };

enum class ValueKind : std::uint8_t {
    Null = 1,
    Boolean, ///< 8 bits
    Integer, ///< 64 bits
    Money, ///< ten thousandths, 64 bits
    Single, ///< the bits of the number, 32
    Double, ///< the bits of the number, 64
    Date, ///< days as the bits of a number, 64
    Text, ///< text
    Guid, ///< 16 bytes
    Decimal, ///< 1 if negative (8 bits), digits behind the point (8 bits), all digits in ASCII to the end
    Binary, ///< nothing more
};

enum class FailureCode : std::uint8_t {
    Damaged = 1,
    UnknownFormat,
    Password,
    Encrypted,
    NoSuchTable,
    IsView,
    IsLinked,
    NoSuchField,
};

/// Puts one frame together.
class Packer {
public:
    explicit Packer(FrameKind kind);

    Packer &Number8(std::uint8_t number);
    Packer &Number16(std::uint16_t number);
    Packer &Number32(std::uint32_t number);
    Packer &Number64(std::uint64_t number);
    Packer &Text(std::u16string_view text);
    Packer &Bytes(std::string_view bytes);
    /// Makes it a frame of another kind.
    Packer &As(FrameKind kind);

    /// The whole frame.
    const std::string &Frame();

private:
    void Append(std::uint64_t number, int bytes);

    std::string frame;
};

/// Takes a content apart. What isn't there reads as 0 or empty, and makes IsWhole false.
class Unpacker {
public:
    explicit Unpacker(std::string_view content)
        : rest(content)
    {
    }

    std::uint8_t Number8() { return static_cast<std::uint8_t>(Number(1)); }
    std::uint16_t Number16() { return static_cast<std::uint16_t>(Number(2)); }
    std::uint32_t Number32() { return static_cast<std::uint32_t>(Number(4)); }
    std::uint64_t Number64() { return Number(8); }
    std::u16string Text();
    /// The bytes of a text, two a letter, the lower one first.
    std::string_view TextBytes();
    /// All that is left.
    std::string_view Rest();

    /// Whether everything asked for was there and nothing is left.
    bool IsWhole() const { return !tooShort && rest.empty(); }

private:
    std::uint64_t Number(std::size_t bytes);

    std::string_view rest;
    bool tooShort = false;
};

/// One letter of the bytes of a text.
inline char16_t LetterAt(std::string_view bytes, std::size_t index)
{
    const auto low = static_cast<unsigned char>(bytes[index * 2]);
    const auto high = static_cast<unsigned char>(bytes[index * 2 + 1]);
    return static_cast<char16_t>(low | high << 8U);
}

/// What the head of a frame says.
struct FrameHead {
    FrameKind kind;
    std::uint32_t length; ///< of the content
};

/// Nothing if the bytes are no head, or that of a frame that nobody may send.
std::optional<FrameHead> ReadHead(std::string_view bytes);

} // namespace tressel::jet
