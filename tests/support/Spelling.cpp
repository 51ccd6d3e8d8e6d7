// SPDX-License-Identifier: MIT
#include "support/Spelling.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace Spelling {
namespace {

const QSet<QString>& Words() {
    static const QSet<QString> words = [] {
        QFile file(QStringLiteral(TAVLORA_SOURCE_DIR "/tests/data/words.txt"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
        return QSet<QString>(lines.begin(), lines.end());
    }();
    return words;
}

QString WithoutNames(QString sText) {
    static const QRegularExpression quoted(QStringLiteral("(^|[\\s(>])('[^']*'|\"[^\"]*\"|\u201c[^\u201d]*\u201d)"));
    static const QRegularExpression tag(QStringLiteral("<[^>]*>"));
    sText.replace(tag, QStringLiteral(" "));
    // A word that stands there stays one word with what follows the quote.
    sText.replace(quoted, QStringLiteral("\\1'"));
    sText.replace(QStringLiteral("&&"), QStringLiteral(" "));
    return sText.remove(u'&');
}

} // namespace

QStringList Unknown(const QString& sText, Names names) {
    static const QRegularExpression around(QStringLiteral("^[^\\w/~]+|[^\\w/]+$"));
    static const QRegularExpression word(QStringLiteral("^[A-Za-z][a-z'\u2019]+$"));
    QStringList unknown;
    const QStringList pieces = WithoutNames(sText).split(QRegularExpression(QStringLiteral("[\\s\u2026-]+")));
    bool first = true;
    for (QString piece : pieces) {
        piece.remove(around);
        if (!word.match(piece).hasMatch()) continue;
        const bool named = piece[0].isUpper() && names == Names::Within && !first;
        first = false;
        if (!named && !Words().contains(piece.toLower().replace(u'\u2019', u'\''))) unknown.append(piece);
    }
    return unknown;
}

void ExpectKnown(const QString& sText, Names names) {
    EXPECT_EQ(Unknown(sText, names).join(u' ').toStdString(), "")
        << "no words of tests/data/words.txt, in: " << sText.toStdString();
}

} // namespace Spelling
