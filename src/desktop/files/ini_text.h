// The text of an ini file: sections in brackets, a key and its value on a line.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace pawnfield {

// Values by section and key. Two keys that differ in case only are two keys here.
using IniValues = QMap<QString, QMap<QString, QString>>;

// Lines that are none of an ini file's are left out. Values may stand in quotation marks, with escapes.
IniValues ParseIni(const QByteArray& bytes);
QByteArray FormatIni(const IniValues& values);

}  // namespace pawnfield
