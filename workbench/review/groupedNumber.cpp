#include "groupedNumber.h"

QString groupedNumber(int number)
{
    QString text = QString::number(number);
    for (qsizetype i = text.size() - 3; i > 0; i -= 3)
        text.insert(i, QChar(0x202f));
    return text;
}
