// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/JetAnswer.h"

#include "machine/posix/NativePath.h"
#include "machine/posix/Retried.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

Failure FailureOfPath()
{
    return Failure(databaseFailures::NoSuchFolder, u"The path is not valid."_s);
}

Failure FailureOfOpening(const NativePath &path, int error)
{
    const bool isMissing = error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG;
    if (isMissing && path.NumberOfMissingFile() == FailureNumber::FileNotFound)
        return Failure(databaseFailures::NoSuchFile, u"The file could not be found."_s);
    if (isMissing)
        return FailureOfPath();
    if (error == EACCES || error == EPERM)
        return Failure(databaseFailures::Refused, u"The file can't be opened; access is refused."_s);
    return Failure(databaseFailures::Unusable, u"The file can't be opened."_s);
}

/// Only regular files: a folder holds no tables, and a pipe would have to be waited for.
Descriptor OpenDatabase(const QString &file)
{
    const NativePath path(file);
    if (path.Problem())
        throw FailureOfPath();
    Descriptor opened(Retried(
        [&] { return openat(path.Folder(), path.Rest(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY); }));
    if (!opened.IsOpen())
        throw FailureOfOpening(path, errno);
    struct stat status = {};
    if (fstat(opened.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        throw Failure(databaseFailures::Refused, u"Only a regular file can be opened."_s);
    return opened;
}

std::u16string_view View(const QString &text)
{
    return {reinterpret_cast<const char16_t *>(text.utf16()), static_cast<std::size_t>(text.size())};
}

std::string FrameOf(const JetQuestion &question)
{
    jet::Packer packer(question.kind);
    packer.Number8(question.road == DatabaseRoad::Older ? 1 : 0);
    packer.Text(View(question.table)).Number16(static_cast<std::uint16_t>(question.fields.size()));
    for (const QString &field : question.fields)
        packer.Text(View(field));
    std::string frame = packer.Frame();
    if (frame.size() > jet::LongestQuestion)
        throw Failure(databaseFailures::NoSuchField, u"No table has fields with such long names."_s);
    return frame;
}

QString TextFrom(jet::Unpacker &unpacker)
{
    const std::string_view bytes = unpacker.TextBytes();
    QString text(static_cast<qsizetype>(bytes.size() / 2), Qt::Uninitialized);
    QChar *letter = text.data();
    for (std::size_t index = 0; index < bytes.size() / 2; ++index)
        *letter++ = jet::LetterAt(bytes, index);
    return text;
}

std::optional<DatabaseValue> GuidFrom(std::string_view bytes)
{
    if (bytes.size() != 16)
        return {};
    return GuidValue{QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()))};
}

std::optional<DatabaseValue> DecimalFrom(jet::Unpacker &unpacker)
{
    constexpr std::size_t mostDigits = 39;
    DecimalValue value;
    value.negative = unpacker.Number8() != 0;
    value.scale = unpacker.Number8();
    const std::string_view digits = unpacker.Rest();
    const bool areDigits =
        std::ranges::all_of(digits, [](char digit) { return digit >= '0' && digit <= '9'; });
    if (digits.empty() || digits.size() > mostDigits || !areDigits)
        return {};
    value.digits = QByteArray(digits.data(), static_cast<qsizetype>(digits.size()));
    return value;
}

std::optional<DatabaseValue> Unpack(jet::ValueKind kind, jet::Unpacker &unpacker)
{
    switch (kind) {
    case jet::ValueKind::Null:
        return std::monostate();
    case jet::ValueKind::Boolean:
        return unpacker.Number8() != 0;
    case jet::ValueKind::Integer:
        return static_cast<std::int64_t>(unpacker.Number64());
    case jet::ValueKind::Money:
        return MoneyValue{static_cast<std::int64_t>(unpacker.Number64())};
    case jet::ValueKind::Single:
        return std::bit_cast<float>(unpacker.Number32());
    case jet::ValueKind::Double:
        return std::bit_cast<double>(unpacker.Number64());
    case jet::ValueKind::Date:
        return DateValue{std::bit_cast<double>(unpacker.Number64())};
    case jet::ValueKind::Text:
        return TextFrom(unpacker);
    case jet::ValueKind::Guid:
        return GuidFrom(unpacker.Rest());
    case jet::ValueKind::Decimal:
        return DecimalFrom(unpacker);
    case jet::ValueKind::Binary:
        return BinaryValue();
    }
    return {};
}

} // namespace

JetAnswer::JetAnswer(JetQuestion asked, const QByteArray &program, Events &events,
                     std::chrono::milliseconds patience)
    : question(std::move(asked))
    , process(program, OpenDatabase(question.file), FrameOf(question), events, patience)
{
    constexpr char version{jet::ProtocolVersion};
    const JetProcess::Frame hello = NextFrame();
    if (hello.kind != jet::FrameKind::Hello || hello.content != std::string_view(&version, 1))
        throw Damaged();
}

std::optional<std::string_view> JetAnswer::Next(jet::FrameKind kind)
{
    if (hasEnded)
        return {};
    const JetProcess::Frame frame = NextFrame();
    if (frame.kind == jet::FrameKind::End) {
        jet::Unpacker unpacker(frame.content);
        if (unpacker.Number64() != count || !unpacker.IsWhole())
            throw Damaged();
        hasEnded = true;
        return {};
    }
    if (frame.kind != kind)
        throw Damaged();
    ++count;
    return frame.content;
}

void JetAnswer::Expect(jet::FrameKind kind)
{
    const JetProcess::Frame frame = NextFrame();
    if (frame.kind != kind || !frame.content.empty())
        throw Damaged();
}

JetProcess::Frame JetAnswer::NextFrame()
{
    const auto frame = process.Next();
    if (!frame)
        throw Damaged();
    if (frame->kind == jet::FrameKind::Failed)
        throw FailureOf(frame->content);
    return *frame;
}

Failure JetAnswer::Damaged() const
{
    return Failure(databaseFailures::Unusable, u"The file is already in use or damaged."_s);
}

Failure JetAnswer::FailureOf(std::string_view content) const
{
    jet::Unpacker unpacker(content);
    const auto code = static_cast<jet::FailureCode>(unpacker.Number8());
    const qsizetype field = unpacker.Number16();
    if (!unpacker.IsWhole() || (code == jet::FailureCode::NoSuchField && field >= question.fields.size()))
        return Damaged();
    switch (code) {
    case jet::FailureCode::UnknownFormat:
        return Failure(databaseFailures::UnknownFormat, u"The file has no known database format."_s);
    case jet::FailureCode::Password:
        return Failure(databaseFailures::Protected, u"The file is protected by a password."_s);
    case jet::FailureCode::Encrypted:
        return Failure(databaseFailures::Protected, u"The file is encrypted."_s);
    case jet::FailureCode::NoSuchTable:
        return Failure(databaseFailures::NoSuchTable,
                       u"Could not find the table '%1'."_s.arg(question.table));
    case jet::FailureCode::IsView:
        return Failure(databaseFailures::NotReadable,
                       u"'%1' is a query. Only tables can be read."_s.arg(question.table));
    case jet::FailureCode::IsLinked:
        return Failure(
            databaseFailures::NotReadable,
            u"'%1' is linked from another database. Only tables in the file itself can be read."_s.arg(
                question.table));
    case jet::FailureCode::NoSuchField:
        return Failure(databaseFailures::NoSuchField,
                       u"The table '%1' has no field '%2'."_s.arg(question.table, question.fields.at(field)));
    case jet::FailureCode::Damaged:
        break;
    }
    return Damaged();
}

std::optional<DatabaseValue> ValueFromFrame(std::string_view content)
{
    jet::Unpacker unpacker(content);
    auto value = Unpack(static_cast<jet::ValueKind>(unpacker.Number8()), unpacker);
    return unpacker.IsWhole() ? value : std::nullopt;
}

} // namespace tressel
