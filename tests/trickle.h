// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QIODevice>

#include <algorithm>
#include <utility>

namespace Quillory {

/// Gives out its bytes a few at a time and knows no size, as a slow pipe does.
class Trickle : public QIODevice
{
public:
    Trickle(QByteArray bytes, qint64 step)
        : m_bytes(std::move(bytes))
        , m_step(step)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    [[nodiscard]] bool isSequential() const override { return true; }

protected:
    qint64 readData(char* target, qint64 size) override
    {
        const qint64 count = std::min({ size, m_step, m_bytes.size() });
        std::copy_n(m_bytes.constData(), count, target);
        m_bytes.remove(0, count);
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    qint64 m_step;
};

} // namespace Quillory
