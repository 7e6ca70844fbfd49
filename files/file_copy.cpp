// SPDX-License-Identifier: MIT
#include "files/file_copy.h"

#include "files/paths.h"
#include "files/reading.h"

namespace files {

FileCopy::FileCopy(const QString& from, const QString& to)
    : m_from(localPath(from)), m_to(to, Existing::Refuse)
{
}

void FileCopy::step()
{
    if (m_size < 0)
        start();
    if (m_isDone)
        return;
    const QByteArray bytes = m_from.read(piece);
    if (m_from.error() != QFile::NoError)
        return end({Problem::CannotRead, m_from.errorString()});
    m_copied += bytes.size();
    const Outcome written = m_to.write(bytes);
    if (!written.isGood())
        end(written);
    else if (bytes.size() < piece)
        finish();
}

void FileCopy::start()
{
    Outcome outcome = openForReading(m_from, QIODevice::ReadOnly | QIODevice::Unbuffered);
    m_size = m_from.size();
    if (outcome.isGood())
        outcome = m_to.open();
    if (!outcome.isGood())
        end(outcome);
}

void FileCopy::finish()
{
    if (m_copied < m_size)
        return end({Problem::TooShort, QStringLiteral("%1/%2").arg(m_copied).arg(m_size)});
    m_to.setModified(m_from.fileTime(QFileDevice::FileModificationTime));
    end(m_to.finish());
}

void FileCopy::end(const Outcome& outcome)
{
    m_outcome = outcome;
    m_isDone = true;
}

} // namespace files
