#pragma once

#include <QString>
#include <stdexcept>

namespace ostrel {

// A failure of the data store: a file that cannot be opened, read past its end, a name that would
// leave the data root, a limit reached. The routine that meets it stops; the event that started it
// reports the message and the program goes on.
class StoreError : public std::runtime_error {
public:
    StoreError(QString file, QString problem)
        : std::runtime_error((file + QStringLiteral(": ") + problem).toStdString()), m_file(std::move(file)),
          m_problem(std::move(problem)) {}

    const QString& file() const { return m_file; }
    const QString& problem() const { return m_problem; }
    // The text a user reads in the message box.
    QString userMessage() const {
        return m_file.isEmpty() ? m_problem : m_problem + QStringLiteral("\n\nFile: ") + m_file;
    }

private:
    QString m_file;
    QString m_problem;
};

// A write refused because the file was found damaged when it was read and the owner chose to keep it.
class DamagedFileKept : public StoreError {
public:
    using StoreError::StoreError;
};

} // namespace ostrel
