// SPDX-License-Identifier: MIT
#include "services/ProgramSettings.h"

ProgramSettings& Settings() {
    static ProgramSettings settings;
    return settings;
}

QString ProgramNameFromArgv0(const QString& argv0) {
    const qsizetype slash = std::max(argv0.lastIndexOf(u'/'), argv0.lastIndexOf(u'\\'));
    const QString name = argv0.mid(slash + 1);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.left(dot) : name;
}
