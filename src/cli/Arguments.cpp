// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Arguments.h"

#include "SafeName.h"

#include <algorithm>
#include <vector>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

bool IsHelp(const QString &word)
{
    return word == u"--help"_s || word == u"-h"_s;
}

bool IsOption(const QString &word)
{
    return word.size() > 1 && word.startsWith(u'-');
}

/// "--name" and "value" of "--name=value"; no value without the "=".
struct Pieces {
    QString name;
    std::optional<QString> value;
};

Pieces PiecesOf(const QString &word)
{
    const qsizetype equals = word.indexOf(u'=');
    if (equals < 0)
        return {word, {}};
    return {word.left(equals), word.mid(equals + 1)};
}

const CommandOption *OptionOf(const Command &command, const QString &dashed)
{
    const auto found = std::ranges::find_if(
        command.options, [&](const CommandOption &option) { return u"--"_s + option.name == dashed; });
    return found == command.options.end() ? nullptr : &*found;
}

QStringList DashedOptions(const Command &command)
{
    QStringList names{u"--help"_s};
    for (const CommandOption &option : command.options)
        names += u"--"_s + option.name;
    return names;
}

/// How many letters must be put in, left out, replaced, or swapped with the next to get from one to the
/// other.
qsizetype Distance(const QString &from, const QString &to)
{
    const auto width = static_cast<size_t>(to.size()) + 1;
    std::vector<std::vector<qsizetype>> table(static_cast<size_t>(from.size()) + 1,
                                              std::vector<qsizetype>(width));
    for (size_t i = 0; i < table.size(); ++i) {
        for (size_t j = 0; j < width; ++j) {
            const auto letter = [](const QString &text, size_t at) {
                return text.at(static_cast<qsizetype>(at) - 1);
            };
            if (i == 0 || j == 0) {
                table[i][j] = static_cast<qsizetype>(i) + static_cast<qsizetype>(j);
                continue;
            }
            const qsizetype replaced = letter(from, i) == letter(to, j) ? 0 : 1;
            table[i][j] =
                std::min({table[i - 1][j] + 1, table[i][j - 1] + 1, table[i - 1][j - 1] + replaced});
            if (i > 1 && j > 1 && letter(from, i) == letter(to, j - 1)
                && letter(from, i - 1) == letter(to, j))
                table[i][j] = std::min(table[i][j], table[i - 2][j - 2] + 1);
        }
    }
    return table.back().back();
}

} // namespace

Arguments::Arguments(const Command &ofCommand, const QStringList &words)
    : command(ofCommand)
{
    bool hasEnded = false;
    for (qsizetype at = 0; at < words.size(); ++at) {
        const QString &word = words.at(at);
        if (hasEnded || !IsOption(word)) {
            operands += word;
        } else if (word == u"--"_s) {
            hasEnded = true;
        } else if (!IsHelp(word)) {
            const auto [name, value] = PiecesOf(word);
            const CommandOption *option = OptionOf(command, name);
            if (!option)
                throw UsageError{
                    u"unknown option %1%2"_s.arg(SafeName(name), DidYouMean(name, DashedOptions(command)))};
            Take(*option, value, words, at);
        }
    }
}

void Arguments::Take(const CommandOption &option, const std::optional<QString> &attached,
                     const QStringList &words, qsizetype &at)
{
    if (values.contains(option.name))
        throw UsageError{u"--%1 is given twice"_s.arg(option.name)};
    if (option.value.isEmpty()) {
        if (attached)
            throw UsageError{u"--%1 takes no value"_s.arg(option.name)};
        values.insert(option.name, {});
        return;
    }
    if (!attached && at + 1 == words.size())
        throw UsageError{u"--%1 needs a %2"_s.arg(option.name, option.value)};
    const QString value = attached ? *attached : words.at(++at);
    const bool isPath = option.value == u"DIR"_s || option.value == u"FILE"_s;
    if (isPath && value.isEmpty())
        throw UsageError{u"--%1 needs a %2"_s.arg(option.name, option.value)};
    if (!option.choices.isEmpty() && !option.choices.contains(value))
        throw UsageError{u"--%1 takes one of %2, not \"%3\""_s.arg(option.name, option.choices.join(u", "_s),
                                                                   SafeName(value))};
    values.insert(option.name, value);
}

bool Arguments::AskForHelp(const Command &command, const QStringList &words)
{
    for (qsizetype at = 0; at < words.size() && words.at(at) != u"--"_s; ++at) {
        if (IsHelp(words.at(at)))
            return true;
        const CommandOption *option = OptionOf(command, words.at(at));
        // The value of an option may look like anything.
        if (option && !option->value.isEmpty())
            ++at;
    }
    return false;
}

std::optional<QString> Arguments::Value(const QString &option) const
{
    const auto found = values.constFind(option);
    return found == values.constEnd() ? std::nullopt : std::optional(*found);
}

QString Arguments::Need(const QString &option) const
{
    if (const auto value = Value(option))
        return *value;
    const CommandOption *told = OptionOf(command, u"--"_s + option);
    throw UsageError{u"%1 needs --%2 %3"_s.arg(command.name, option, told ? told->value : QString())};
}

QString NearestTo(const QString &mistyped, const QStringList &words)
{
    constexpr qsizetype farthest = 2;
    constexpr qsizetype longest = 64;
    QString nearest;
    qsizetype least = std::min(farthest, mistyped.size() / 2) + 1;
    for (const QString &word : words) {
        const qsizetype distance = mistyped.size() > longest ? least : Distance(mistyped, word);
        if (distance < least) {
            least = distance;
            nearest = word;
        }
    }
    return nearest;
}

QString DidYouMean(const QString &mistyped, const QStringList &words)
{
    const QString nearest = NearestTo(mistyped, words);
    return nearest.isEmpty() ? QString() : u", did you mean %1?"_s.arg(nearest);
}

} // namespace tressel
