// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QStringList>

#include <cstdlib>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

/// While one exists, the test is a user whom rights bind: root, who may write everything, becomes somebody else, who
/// owns the files that are given.
class OrdinaryUser {
public:
    explicit OrdinaryUser([[maybe_unused]] const QStringList& files) {
#ifdef Q_OS_LINUX
        m_root = ::geteuid() == 0;
        if (!m_root) return;
        for (const QString& file : files)
            m_isIt = ::chown(QFile::encodeName(file).constData(), kNobody, kNobody) == 0 && m_isIt;
        // Root stays the saved user, or there would be no way back.
        m_isIt = ::setresgid(kNobody, kNobody, 0) == 0 && ::setresuid(kNobody, kNobody, 0) == 0 && m_isIt;
#endif
    }
    ~OrdinaryUser() {
#ifdef Q_OS_LINUX
        if (m_root && (::setresuid(0, 0, 0) != 0 || ::setresgid(0, 0, 0) != 0)) std::abort();
#endif
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

    /// False where root couldn't become anybody else.
    bool IsIt() const { return m_isIt; }

private:
    static constexpr unsigned kNobody = 65534;
    bool m_root = false;
    bool m_isIt = true;
};
