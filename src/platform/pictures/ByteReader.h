// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <algorithm>
#include <optional>

/// Reads numbers of either byte order and never past the end.
class ByteReader {
public:
    explicit ByteReader(QByteArrayView bytes) : m_bytes(bytes) {}
    void SetLittleEndian(bool little) { m_little = little; }

    /// Of so many bytes, 4 at most.
    std::optional<quint32> Number(qint64 offset, int length) const {
        if (offset < 0 || offset > m_bytes.size() - length) return std::nullopt;
        quint32 value = 0;
        for (int i = 0; i < length; ++i) {
            const qint64 at = offset + (m_little ? length - 1 - i : i);
            value = value << 8 | quint8(m_bytes[at]);
        }
        return value;
    }
    /// Shorter where the bytes end.
    QByteArrayView Bytes(qint64 offset, qint64 length) const {
        if (offset < 0 || offset >= m_bytes.size()) return {};
        return m_bytes.sliced(offset, std::min<qint64>(length, m_bytes.size() - offset));
    }

private:
    QByteArrayView m_bytes;
    bool m_little = false;
};
