// SPDX-License-Identifier: MIT
#pragma once

#include "pack/Packing.h"
#include "platform/files/Files.h"
#include "platform/files/TextFile.h"
#include "services/RecordText.h"
#include "support/FileFixture.h"
#include "support/PictureFiles.h"

#include <QCryptographicHash>
#include <QDirIterator>

/// Games with pictures that lie anywhere, to be packed.
class PackTest : public GameFileTest {
protected:
    /// A small picture of one colour, as a file that no other equals.
    static QByteArray PictureOf(int number) {
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(number * 7 % 360, 255, 100 + number));
        return PictureFiles::Encoded(image, "PNG");
    }
    QString WritePicture(const QString& name, int number) const {
        const QString path = PathOf(name);
        QDir(folder.path()).mkpath(QFileInfo(path).path());
        return WriteFile(name, PictureOf(number));
    }
    /// Space, corner, note or token by its line; the picture stands in its third or fourth field.
    static QString WithPicture(const QString& line, const QString& path) {
        return QString(line).replace(QStringLiteral("\"\",0,0,0"), basTAVL::Quote(path) + QStringLiteral(",4,4,5"));
    }
    static QStringList LinesWith(const QMap<int, QString>& pictures) {
        QStringList lines = PlainLines();
        for (auto each = pictures.begin(); each != pictures.end(); ++each)
            lines[each.key()] = WithPicture(lines[each.key()], each.value());
        return lines;
    }
    static Packing::Contents Gathered(const QStringList& lines, const QString& game) {
        return Packing::Gather(lines, game, [](const QString& name, const PictureOwner& owner) {
            return PicturePlaces::FullFor(name, owner, KitInUse());
        });
    }
    static QByteArray Packed(const Packing::Contents& contents) {
        QString error;
        const std::optional<QByteArray> bytes = Packing::Pack(contents, {}, error);
        EXPECT_TRUE(bytes) << error.toStdString();
        return bytes.value_or(QByteArray());
    }
    /// Everything in a folder and below it, a line each: its path in there and what it holds.
    static std::string Tree(const QString& path) {
        QStringList lines;
        QDirIterator files(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString each = files.next();
            const QByteArray sum =
                QCryptographicHash::hash(files.fileInfo().isDir() ? "folder" : ReadFile(each), QCryptographicHash::Md5);
            lines.append(each.mid(path.size() + 1) + u' ' + QString::fromLatin1(sum.toHex()));
        }
        lines.sort();
        return lines.join(u'\n').toStdString();
    }
    /// The same without what it holds.
    static QStringList Names(const QString& path) {
        QStringList names;
        QDirIterator files(path, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            names.append(files.next().mid(path.size() + 1));
        names.sort();
        return names;
    }
};
