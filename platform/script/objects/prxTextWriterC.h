#pragma once

#include <core/component/mzIDispatchC.h>
#include <core/component/proxyObjectC.h>

#include <QSaveFile>

/// A text file that the user named for what a script writes, in UTF-8: complete or absent. What is
/// written goes to a file beside it until commit(), which is not for scripts.
class prxTextWriterC : public proxyObjectC
{
public:
    /// False with \a error if the file cannot be written; then nothing else may be called.
    [[nodiscard]] bool open(const QString &path, QString *error);
    /// False with \a error: the former file is as it was.
    [[nodiscard]] bool commit(QString *error);

    [[nodiscard]] const proxyMemberDescListS *getProxyTypeInfo() const override;
    /// Scripts have all of the below.
    [[nodiscard]] static const proxyMemberDescListS *getStaticProxyTypeInfo();

    [[nodiscard]] QString path() const { return m_file.fileName(); }
    void write(const QString &text);
    /// The text with a line feed.
    void writeLine(const QString &text);
    /// A list of the script as a row of CSV. What is no list, or has more than 10 000 cells, is an
    /// error of the script.
    void writeRow(const mzIDispatchC &cells);

private:
    ~prxTextWriterC() override;

    /// Throws the script error if the disk refuses it.
    void put(const QByteArray &bytes);

    QSaveFile m_file;
};
