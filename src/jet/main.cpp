// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

// Reads one database file for the other programs: the question comes over standard input, the file is open
// on descriptor 3, and the answer goes to standard output (see Wire.h). A damaged file can crash, stop or
// fool the library that this is built on, so it happens here, in a process that has nothing to lose.

#include "Catalog.h"
#include "JetTable.h"
#include "Limits.h"
#include "Refusal.h"
#include "Values.h"
#include "Wire.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <new>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using namespace tressel::jet;

constexpr int unusable = 1; // the exit status of one that nobody can talk to

/// The other end, where the answer goes.
class Output {
public:
    explicit Output(int descriptor)
        : descriptor(descriptor)
    {
    }

    void Send(Packer &packer)
    {
        waiting += packer.Frame();
        ++sent;
        if (waiting.size() >= enough)
            Flush();
    }
    void Send(Packer &&packer) { Send(packer); }
    void Flush()
    {
        for (std::size_t place = 0; place < waiting.size();) {
            const ssize_t written = write(descriptor, waiting.data() + place, waiting.size() - place);
            if (written > 0)
                place += static_cast<std::size_t>(written);
            else if (errno != EINTR)
                _exit(unusable);
        }
        waiting.clear();
    }
    /// Since the last time; for the End of an answer.
    std::uint64_t TakeCount() { return std::exchange(sent, 0); }

private:
    static constexpr std::size_t enough = 32U << 10U;

    int descriptor;
    std::string waiting;
    std::uint64_t sent = 0;
};

struct Question {
    FrameKind kind;
    bool older;
    std::u16string table;
    std::vector<std::u16string> fields;
};

std::string ReadInput()
{
    std::string input;
    std::array<char, 4096> piece{};
    while (input.size() <= LongestQuestion) {
        const ssize_t got = read(STDIN_FILENO, piece.data(), piece.size());
        if (got > 0)
            input.append(piece.data(), static_cast<std::size_t>(got));
        else if (got == 0 || errno != EINTR)
            break;
    }
    return input;
}

Question ReadQuestion()
{
    const std::string input = ReadInput();
    const auto head = ReadHead(input);
    if (!head || head->kind > FrameKind::AskValues || input.size() != FrameHeadLength + head->length)
        _exit(unusable);
    Unpacker unpacker(std::string_view(input).substr(FrameHeadLength));
    Question question{head->kind, unpacker.Number8() != 0, unpacker.Text(), {}};
    for (std::uint16_t left = unpacker.Number16(); left > 0; --left)
        question.fields.push_back(unpacker.Text());
    if (!unpacker.IsWhole() || (question.kind == FrameKind::AskValues && question.fields.empty()))
        _exit(unusable);
    return question;
}

/// The answer's way out, out of reach for what the library prints.
Output TakeOutput()
{
    const int output = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, FileDescriptor + 1);
    const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
    if (output < 0 || nowhere < 0)
        _exit(unusable);
    for (const int taken : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (dup2(nowhere, taken) < 0)
            _exit(unusable);
    }
    close(nowhere);
    return Output(output);
}

void TellObjects(JetFile &file, Output &output)
{
    Catalog catalog(file);
    output.Send(Packer(FrameKind::Opened));
    output.TakeCount();
    while (const auto entry = catalog.Next())
        output.Send(
            Packer(FrameKind::Object).Number8(static_cast<std::uint8_t>(entry->kind)).Text(entry->name));
}

void TellFields(JetFile &file, const std::u16string &table, Output &output)
{
    const JetTable opened(file, PageOfTable(file, table));
    output.Send(Packer(FrameKind::Opened));
    output.TakeCount();
    for (const JetColumn &column : opened.Columns()) {
        const FieldFacts facts = FactsOf(file, column);
        output.Send(Packer(FrameKind::Field).Number16(facts.type).Number32(facts.size).Text(column.name));
    }
}

std::vector<std::size_t> ColumnsOf(const JetTable &table, const std::vector<std::u16string> &fields)
{
    std::vector<std::size_t> columns;
    for (const std::u16string &field : fields) {
        const auto column = table.Find(field);
        if (!column)
            throw Refusal{FailureCode::NoSuchField, static_cast<std::uint16_t>(columns.size())};
        columns.push_back(*column);
    }
    return columns;
}

void TellValues(JetFile &file, const Question &question, Output &output)
{
    JetTable table(file, PageOfTable(file, question.table));
    output.Send(Packer(FrameKind::Opened));
    output.TakeCount();
    std::vector<std::size_t> columns;
    while (table.NextRow()) {
        // Not before there is a row: in a table without any no field is missed.
        if (columns.empty())
            columns = ColumnsOf(table, question.fields);
        for (std::size_t place = 0; place + 1 < columns.size(); ++place)
            output.Send(ValueOf(file, table, columns[place]));
        output.Send(ValueOf(file, table, columns.back()).As(FrameKind::LastValue));
    }
}

void Answer(const Question &question, Output &output)
{
    JetFile file(FileDescriptor);
    ForbidSystemCalls();
    if (question.older && !file.IsOldest())
        throw Refusal{FailureCode::UnknownFormat};
    output.TakeCount();
    if (question.kind == FrameKind::AskObjects)
        TellObjects(file, output);
    else if (question.kind == FrameKind::AskFields)
        TellFields(file, question.table, output);
    else
        TellValues(file, question, output);
    output.Send(Packer(FrameKind::End).Number64(output.TakeCount()));
}

void Refuse(const Refusal &refusal, Output &output)
{
    output.Send(
        Packer(FrameKind::Failed).Number8(static_cast<std::uint8_t>(refusal.code)).Number16(refusal.field));
}

} // namespace

int main()
{
    // The library listens to the environment, and would look for files where a variable says.
    clearenv();
    const Question question = ReadQuestion();
    Output output = TakeOutput();
    SetLimits();
    output.Send(Packer(FrameKind::Hello).Number8(ProtocolVersion));
    try {
        Answer(question, output);
    } catch (const Refusal &refusal) {
        Refuse(refusal, output);
    } catch (const std::bad_alloc &) {
        Refuse({FailureCode::Damaged}, output);
    }
    output.Flush();
    // At once: what is left of a damaged file had better not be cleaned up.
    _exit(0);
}
