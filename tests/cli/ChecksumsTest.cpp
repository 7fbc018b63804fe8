// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "Checksums.h"

#include "support/Text.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

using namespace tressel;
using namespace Qt::StringLiterals;

namespace {

const QByteArray digest = QCryptographicHash::hash("x", QCryptographicHash::Sha256);

TEST(Checksums, ALineIsTheDigestTwoBlanksAndTheName)
{
    EXPECT_EQ(ChecksumLine(u"a b.bin"_s, digest),
              "2d711642b726b04401627ca9fbac32f5c8530fb1903cc4db02258717921a4881  a b.bin\n");
    EXPECT_EQ(ChecksumsName(u"a.bin"_s), u"a.bin.sha256"_s);
}

TEST(Checksums, OddNamesComeBack)
{
    for (const QString &name : {u"a"_s, u" a "_s, u"a\nb"_s, u"a\\nb"_s, u"\\"_s, u"a\rb"_s, u"*a"_s,
                                u"\u00e4"_s, u"a"_s + QChar(0xDCFF)}) {
        const auto digests = ChecksumsOf(ChecksumLine(name, digest));
        EXPECT_EQ(digests.value(name), digest) << name.toStdString();
        EXPECT_EQ(digests.size(), 1);
    }
    EXPECT_TRUE(ChecksumLine(u"a\nb"_s, digest).startsWith('\\'));
    EXPECT_TRUE(ChecksumLine(u"a\nb"_s, digest).endsWith("  a\\nb\n"));
}

TEST(Checksums, BinaryMarksAreReadAndOtherLinesPassed)
{
    const QByteArray hex = digest.toHex();
    EXPECT_EQ(ChecksumsOf(hex + " *a.bin\n").value(u"a.bin"_s), digest);
    EXPECT_EQ(ChecksumsOf(hex.toUpper() + "  a.bin").value(u"a.bin"_s), digest);
    for (const QByteArray &other : {QByteArray("hello\n"), hex, hex + "  ", hex.chopped(2) + "  a.bin\n",
                                    "zz" + hex.mid(2) + "  a.bin\n", QByteArray("\n\n")})
        EXPECT_TRUE(ChecksumsOf(other).isEmpty()) << other.constData();
}

} // namespace
