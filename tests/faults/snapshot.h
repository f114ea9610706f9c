// The bytes of the files that a writer is about, and what became of them.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace pawnfield::faults {

// Content by the path below the folder; a file that isn't there has no entry.
using Snapshot = QMap<QString, QByteArray>;

enum class Verdict { Old, New, Between, Torn };

// Judges what is on the disk against what was there before the write and what the write would leave.
using Judge = Verdict (*)(const Snapshot& now, const Snapshot& before, const Snapshot& after);

Snapshot Take(const QString& folder, const QStringList& files);

// Each file is the old one or the new one.
Verdict JudgeFiles(const Snapshot& now, const Snapshot& before, const Snapshot& after);
// The same, and the list of what was shipped may have lines of both, and such as tell what is on its way.
Verdict JudgeCopy(const Snapshot& now, const Snapshot& before, const Snapshot& after);
// The set is the old one or the new one, and beside it lies what it replaced, or still what the old one replaced.
Verdict JudgeSet(const Snapshot& now, const Snapshot& before, const Snapshot& after);
// A bundle carries its own time too, and is judged by what is in it.
Verdict JudgeBundle(const Snapshot& now, const Snapshot& before, const Snapshot& after);
// A page carries its own time, so that it is judged by its frame: head, table of places and end.
Verdict JudgePages(const Snapshot& now, const Snapshot& before, const Snapshot& after);

// Files of the folder, however deep, that are neither wanted nor the known companions of a running program.
QStringList Strays(const QString& folder, const QStringList& wanted);

}  // namespace pawnfield::faults
