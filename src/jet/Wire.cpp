// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Wire.h"

namespace tressel::jet {

namespace {

constexpr unsigned bitsInByte = 8;
constexpr std::size_t kindPlace = 4; // in a frame, behind the length

std::uint64_t ReadNumber(std::string_view bytes)
{
    std::uint64_t number = 0;
    for (std::size_t index = bytes.size(); index-- > 0;)
        number = number << bitsInByte | static_cast<unsigned char>(bytes[index]);
    return number;
}

} // namespace

Packer::Packer(FrameKind kind)
    : frame(FrameHeadLength, '\0')
{
    As(kind);
}

Packer &Packer::Number8(std::uint8_t number)
{
    Append(number, 1);
    return *this;
}

Packer &Packer::Number16(std::uint16_t number)
{
    Append(number, 2);
    return *this;
}

Packer &Packer::Number32(std::uint32_t number)
{
    Append(number, 4);
    return *this;
}

Packer &Packer::Number64(std::uint64_t number)
{
    Append(number, 8);
    return *this;
}

Packer &Packer::Text(std::u16string_view text)
{
    Number32(static_cast<std::uint32_t>(text.size() * 2));
    std::size_t place = frame.size();
    frame.resize(place + text.size() * 2);
    for (const char16_t letter : text) {
        frame[place++] = static_cast<char>(letter & 0xFFU);
        frame[place++] = static_cast<char>(letter >> bitsInByte);
    }
    return *this;
}

Packer &Packer::Bytes(std::string_view bytes)
{
    frame.append(bytes);
    return *this;
}

Packer &Packer::As(FrameKind kind)
{
    frame[kindPlace] = static_cast<char>(kind);
    return *this;
}

const std::string &Packer::Frame()
{
    auto length = static_cast<std::uint32_t>(frame.size() - FrameHeadLength);
    for (std::size_t index = 0; index < kindPlace; ++index, length >>= bitsInByte)
        frame[index] = static_cast<char>(length & 0xFFU);
    return frame;
}

void Packer::Append(std::uint64_t number, int bytes)
{
    for (int index = 0; index < bytes; ++index, number >>= bitsInByte)
        frame.push_back(static_cast<char>(number & 0xFFU));
}

std::u16string Unpacker::Text()
{
    const std::string_view bytes = TextBytes();
    std::u16string text(bytes.size() / 2, u'\0');
    for (std::size_t index = 0; index < text.size(); ++index)
        text[index] = LetterAt(bytes, index);
    return text;
}

std::string_view Unpacker::TextBytes()
{
    const std::uint32_t length = Number32();
    if (length % 2 != 0 || length > rest.size()) {
        tooShort = true;
        return {};
    }
    const std::string_view bytes = rest.substr(0, length);
    rest.remove_prefix(length);
    return bytes;
}

std::string_view Unpacker::Rest()
{
    const std::string_view all = rest;
    rest = {};
    return all;
}

std::uint64_t Unpacker::Number(std::size_t bytes)
{
    if (bytes > rest.size()) {
        tooShort = true;
        rest = {};
        return 0;
    }
    const std::uint64_t number = ReadNumber(rest.substr(0, bytes));
    rest.remove_prefix(bytes);
    return number;
}

std::optional<FrameHead> ReadHead(std::string_view bytes)
{
    if (bytes.size() < FrameHeadLength)
        return {};
    const auto length = static_cast<std::uint32_t>(ReadNumber(bytes.substr(0, kindPlace)));
    const auto kind = static_cast<std::uint8_t>(bytes[kindPlace]);
    if (length > LongestFrame || kind < static_cast<std::uint8_t>(FrameKind::AskObjects)
        || kind > static_cast<std::uint8_t>(FrameKind::End)) {
        return {};
    }
    return FrameHead{static_cast<FrameKind>(kind), length};
}

} // namespace tressel::jet
