#include "returnfile/fileheaderrecord.h"

#include "core/formtraits.h"

#include <QDate>

RecordLine fileHeaderRecord(int lineNumber, const FormTraits &form, const QString &tan,
                            const QDate &creationDate)
{
    RecordLine line(lineNumber, QStringLiteral("FH"));
    line.addText(form.fileType)
        .addText(QStringLiteral("R"))
        .addDate(creationDate)
        .addNumber(1)
        .addText(QStringLiteral("D"))
        .addText(tan)
        .addNumber(1) // one batch per file
        .addText(QStringLiteral("Kelvora"))
        .addBlank(7);
    return line;
}
