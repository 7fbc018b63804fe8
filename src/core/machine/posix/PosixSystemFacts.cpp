// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "machine/posix/PosixSystemFacts.h"

#include "base/Failure.h"
#include "machine/NameText.h"
#include "machine/posix/PosixFileSystem.h"

#include <pwd.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace tressel {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestRelease = 1 << 16;

QByteArray ReleaseFile()
{
    PosixFileSystem files;
    for (const QString &path : {u"/etc/os-release"_s, u"/usr/lib/os-release"_s}) {
        try {
            return files.Open(path, OpenFor::Reading)->Read(longestRelease);
        } catch (const Failure &) {
            // The other one may be there.
        }
    }
    return {};
}

QByteArray UserField(char *passwd::*field)
{
    const passwd *const user = getpwuid(getuid());
    return user ? QByteArray(user->*field) : QByteArray();
}

/// The full name of a line of facts. "&" stands for the login name with a capital, as finger(1) reads it.
QByteArray FullName(const QByteArray &userFacts, const QByteArray &login)
{
    QByteArray name = userFacts.left(userFacts.indexOf(',')).trimmed();
    const QByteArray capital = login.left(1).toUpper() + login.mid(1);
    name.replace('&', capital);
    return name.isEmpty() ? login : name;
}

} // namespace

PosixSystemFacts::PosixSystemFacts()
    : PosixSystemFacts(ReleaseFile(), UserField(&passwd::pw_gecos), UserField(&passwd::pw_name))
{
}

PosixSystemFacts::PosixSystemFacts(const QByteArray &release, const QByteArray &userFacts,
                                   const QByteArray &login)
{
    utsname kernel{};
    const bool isKnown = uname(&kernel) == 0;
    const QByteArray product = AssignedValue(release, "NAME");
    Put(u"ProductName"_s, product.isEmpty() && isKnown ? QByteArray(kernel.sysname) : product);
    Put(u"CurrentVersion"_s, AssignedValue(release, "VERSION_ID"));
    Put(u"CurrentBuildNumber"_s, isKnown ? QByteArray(kernel.release) : QByteArray());
    Put(u"CSDVersion"_s, isKnown ? QByteArray(kernel.version) : QByteArray());
    Put(u"RegisteredOwner"_s, FullName(userFacts, login));
}

void PosixSystemFacts::Put(const QString &name, const QByteArray &value)
{
    if (!value.isEmpty())
        facts.insert(name.toLower(), *TextFromUtf8(value, NameBytes::Raw));
}

std::optional<QString> PosixSystemFacts::Fact(const QString &name) const
{
    const auto fact = facts.find(name.toLower());
    return fact == facts.end() ? std::nullopt : std::optional(*fact);
}

QByteArray AssignedValue(const QByteArray &text, const QByteArray &variable)
{
    for (const QByteArray &line : text.split('\n')) {
        if (!line.startsWith(variable + '='))
            continue;
        const QByteArray value = line.mid(variable.size() + 1).trimmed();
        const bool isQuoted = value.size() >= 2 && (value.front() == '"' || value.front() == '\'')
            && value.back() == value.front();
        QByteArray plain;
        const QByteArray inner = isQuoted ? value.mid(1, value.size() - 2) : value;
        for (qsizetype at = 0; at < inner.size(); ++at) {
            const bool isEscape = inner.at(at) == '\\' && value.front() != '\'' && at + 1 < inner.size();
            plain += inner.at(isEscape ? ++at : at);
        }
        return plain;
    }
    return {};
}

} // namespace tressel
