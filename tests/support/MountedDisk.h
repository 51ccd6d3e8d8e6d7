// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <sys/mount.h>

/// A small disk of its own in a folder, for as long as it lives: it goes whatever becomes of the test. Only root
/// can mount one, on Linux.
class MountedDisk {
public:
    MountedDisk(const QString& sFolder, int bytes) : m_sFolder(sFolder) {
        QDir().mkpath(sFolder);
        const QByteArray size = "size=" + QByteArray::number(bytes);
        m_mounted = mount("tmpfs", QFile::encodeName(sFolder).constData(), "tmpfs", 0, size.constData()) == 0;
    }
    ~MountedDisk() {
        // Lazily: a file of it may still be open.
        if (m_mounted) umount2(QFile::encodeName(m_sFolder).constData(), MNT_DETACH);
    }
    MountedDisk(const MountedDisk&) = delete;
    MountedDisk& operator=(const MountedDisk&) = delete;

    bool IsMounted() const { return m_mounted; }
    const QString& Path() const { return m_sFolder; }

    /// Leaves not one byte free.
    void Fill() const {
        QFile filler(FillerPath());
        if (!filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return;
        for (qint64 block = 4096; block > 0;) {
            if (filler.write(QByteArray(block, 'x')) != block) block /= 2;
        }
    }
    void MakeRoom() const { QFile::remove(FillerPath()); }

private:
    QString FillerPath() const { return m_sFolder + QStringLiteral("/filler"); }

    QString m_sFolder;
    bool m_mounted = false;
};
