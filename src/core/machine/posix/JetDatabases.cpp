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

std::optional<DatabaseObject> ObjectFrom(const std::string &content)
{
    jet::Unpacker unpacker(content);
    const auto kind = KindFrom(unpacker.Number8());
    const QString name = QString::fromStdU16String(unpacker.Text());
    if (!kind || !unpacker.IsWhole())
        return {};
    return DatabaseObject{name, *kind};
}

std::optional<DatabaseField> FieldFrom(const std::string &content)
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

class JetObjectReader : public ObjectReader {
public:
    explicit JetObjectReader(std::unique_ptr<JetAnswer> opened)
        : answer(std::move(opened))
    {
    }
    std::optional<DatabaseObject> Next() override
    {
        if (const auto open = std::exchange(answer, nullptr))
            ReadAll(*open);
        if (objects.isEmpty())
            return {};
        return objects.takeFirst();
    }

private:
    /// Files have them in no order.
    void ReadAll(JetAnswer &open)
    {
        while (const auto content = open.Next(jet::FrameKind::Object)) {
            const auto object = ObjectFrom(*content);
            if (!object || objects.size() >= mostObjects)
                throw open.Damaged();
            objects += *object;
        }
        std::ranges::stable_sort(objects, ComesBefore);
    }

    std::unique_ptr<JetAnswer> answer;
    QList<DatabaseObject> objects;
};

class JetFieldReader : public FieldReader {
public:
    explicit JetFieldReader(std::unique_ptr<JetAnswer> opened)
        : answer(std::move(opened))
    {
    }
    std::optional<DatabaseValue> Next() override
    {
        if (!answer)
            return {};
        const auto content = answer->Next(jet::FrameKind::Value);
        if (!content) {
            answer.reset();
            return {};
        }
        auto value = ValueFromFrame(*content);
        if (!value)
            throw answer->Damaged();
        return value;
    }

private:
    std::unique_ptr<JetAnswer> answer;
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

QList<DatabaseField> JetDatabases::Fields(const QString &file, const QString &table, DatabaseRoad road)
{
    JetAnswer answer({jet::FrameKind::AskFields, file, table, {}, road}, program, events, patience);
    QList<DatabaseField> fields;
    while (const auto content = answer.Next(jet::FrameKind::Field)) {
        const auto field = FieldFrom(*content);
        if (!field || fields.size() >= mostFields)
            throw answer.Damaged();
        fields += *field;
    }
    return fields;
}

std::unique_ptr<FieldReader> JetDatabases::Read(const QString &file, const QString &table,
                                                const QString &field)
{
    auto answer = std::make_unique<JetAnswer>(
        JetQuestion{jet::FrameKind::AskValues, file, table, field, DatabaseRoad::Newer}, program, events,
        patience);
    answer->Expect(jet::FrameKind::Opened);
    return std::make_unique<JetFieldReader>(std::move(answer));
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
