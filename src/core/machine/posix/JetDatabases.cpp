// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/JetDatabases.h"

#include "machine/posix/JetAnswer.h"
#include "machine/posix/PosixProgram.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace tressel {

namespace {

// A file that tells of more isn't one that anybody made.
constexpr qsizetype mostObjects = 1 << 16;
constexpr qsizetype mostFields = 1 << 10;

std::optional<DatabaseObjectKind> KindFrom(std::uint8_t number)
{
    switch (static_cast<jet::ObjectKind>(number)) {
    case jet::ObjectKind::Table:
        return DatabaseObjectKind::Table;
    case jet::ObjectKind::View:
        return DatabaseObjectKind::View;
    case jet::ObjectKind::LinkedTable:
        return DatabaseObjectKind::LinkedTable;
    case jet::ObjectKind::SystemTable:
        return DatabaseObjectKind::SystemTable;
    }
    return {};
}

std::optional<DatabaseObject> ObjectFrom(std::string_view content)
{
    jet::Unpacker unpacker(content);
    const auto kind = KindFrom(unpacker.Number8());
    const QString name = QString::fromStdU16String(unpacker.Text());
    if (!kind || !unpacker.IsWhole())
        return {};
    return DatabaseObject{name, *kind};
}

std::optional<DatabaseField> FieldFrom(std::string_view content)
{
    jet::Unpacker unpacker(content);
    DatabaseField field;
    field.type = static_cast<std::int16_t>(unpacker.Number16());
    field.size = static_cast<std::int32_t>(unpacker.Number32());
    field.name = QString::fromStdU16String(unpacker.Text());
    if (!unpacker.IsWhole())
        return {};
    return field;
}

bool ComesBefore(const DatabaseObject &one, const DatabaseObject &other)
{
    if (one.kind != other.kind)
        return one.kind < other.kind;
    return one.name.compare(other.name, Qt::CaseInsensitive) < 0;
}

/// Reads an answer. To close it is to end the process that gives it.
template <typename Reader> class JetReader : public Reader {
public:
    explicit JetReader(std::unique_ptr<JetAnswer> opened)
        : answer(std::move(opened))
    {
    }
    int State() const override { return answer ? 1 : 0; }
    void Close() override { answer.reset(); }

protected:
    /// The next frame's content, good until the one behind it; nothing once the answer is closed or has come
    /// to its end.
    std::optional<std::string_view> NextContent(jet::FrameKind kind)
    {
        return answer ? answer->Next(kind) : std::nullopt;
    }
    Failure Damaged() const { return answer->Damaged(); }

private:
    std::unique_ptr<JetAnswer> answer;
};

class JetObjectReader : public JetReader<ObjectReader> {
public:
    using JetReader::JetReader;

    std::optional<DatabaseObject> Next() override
    {
        if (!std::exchange(isRead, true))
            ReadAll();
        if (objects.isEmpty())
            return {};
        return objects.takeFirst();
    }

private:
    /// Files have them in no order.
    void ReadAll()
    {
        while (const auto content = NextContent(jet::FrameKind::Object)) {
            const auto object = ObjectFrom(*content);
            if (!object || objects.size() >= mostObjects)
                throw Damaged();
            objects += *object;
        }
        std::ranges::stable_sort(objects, ComesBefore);
    }

    QList<DatabaseObject> objects;
    bool isRead = false;
};

class JetFieldListReader : public JetReader<FieldListReader> {
public:
    using JetReader::JetReader;

    std::optional<DatabaseField> Next() override
    {
        const auto content = NextContent(jet::FrameKind::Field);
        if (!content)
            return {};
        auto field = FieldFrom(*content);
        if (!field || ++count > mostFields)
            throw Damaged();
        return field;
    }

private:
    qsizetype count = 0;
};

class JetFieldReader : public JetReader<FieldReader> {
public:
    JetFieldReader(std::unique_ptr<JetAnswer> opened, qsizetype fields)
        : JetReader(std::move(opened))
        , valuesInRow(fields)
    {
    }

    std::optional<DatabaseValue> Next() override
    {
        const bool isLast = place + 1 == valuesInRow;
        const auto content = NextContent(isLast ? jet::FrameKind::LastValue : jet::FrameKind::Value);
        if (!content) {
            if (State() > 0 && place > 0)
                throw Damaged(); // in the middle of a row
            return {};
        }
        auto value = ValueFromFrame(*content);
        if (!value)
            throw Damaged();
        place = isLast ? 0 : place + 1;
        return value;
    }

private:
    const qsizetype valuesInRow;
    qsizetype place = 0; ///< in the row, of the next value
};

} // namespace

JetDatabases::JetDatabases(Events &eventLoop, QByteArray path, std::chrono::milliseconds longest)
    : events(eventLoop)
    , program(std::move(path))
    , patience(longest)
{
}

std::unique_ptr<ObjectReader> JetDatabases::OpenSchema(const QString &file, DatabaseRoad road)
{
    auto answer = std::make_unique<JetAnswer>(JetQuestion{jet::FrameKind::AskObjects, file, {}, {}, road},
                                              program, events, patience);
    answer->Expect(jet::FrameKind::Opened);
    return std::make_unique<JetObjectReader>(std::move(answer));
}

std::unique_ptr<FieldListReader> JetDatabases::OpenFields(const QString &file, const QString &table,
                                                          DatabaseRoad road)
{
    auto answer = std::make_unique<JetAnswer>(JetQuestion{jet::FrameKind::AskFields, file, table, {}, road},
                                              program, events, patience);
    answer->Expect(jet::FrameKind::Opened);
    return std::make_unique<JetFieldListReader>(std::move(answer));
}

std::unique_ptr<FieldReader> JetDatabases::Read(const QString &file, const QString &table,
                                                const QStringList &fields)
{
    auto answer = std::make_unique<JetAnswer>(
        JetQuestion{jet::FrameKind::AskValues, file, table, fields, DatabaseRoad::Newer}, program, events,
        patience);
    answer->Expect(jet::FrameKind::Opened);
    return std::make_unique<JetFieldReader>(std::move(answer), fields.size());
}

QByteArray JetDatabases::FindJet()
{
    const QByteArray executable = RunningExecutable();
    const QByteArray folder = executable.left(executable.lastIndexOf('/') + 1);
    const QByteArray beside = folder + "tressel-jet";
    if (access(beside.constData(), X_OK) == 0)
        return beside;
    return folder + TRESSEL_HELPER_FOLDER "/tressel-jet";
}

} // namespace tressel
