// SPDX-License-Identifier: MIT
#include "board/basPositRents.h"

#include "document/basTAVL.h"
#include "document/Locale.h"
#include "document/Subscript.h"
#include "platform/files/Files.h"
#include "platform/files/Folders.h"
#include "platform/files/SequentialInput.h"
#include "platform/files/TextFile.h"
#include "platform/text/NewLine.h"
#include "platform/text/Numbers.h"
#include "services/basCommon.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"

#include <array>

namespace basPosit {
namespace {

const QString kBlankLine = kNewLine + kNewLine;

struct State {
    RentTable rents;
    // Which file the rents stand for; nothing while the path is empty.
    QString sPath;
    Kit kit = Kit::Unknown;
    Files::Stamp stamp;
};

State& Module() {
    static State state;
    return state;
}

QString Reinstall() {
    return kBlankLine + QStringLiteral("To correct this problem, you may have to reinstall the software. ");
}

QString CannotDoWithout() {
    return QStringLiteral("Since we cannot get the rent values without this file, the program is being terminated. ") +
           Reinstall();
}

void TellMissing(const QString& sPath, const QString& sError) {
    MsgBox(QStringLiteral("Unable to locate the file named '") + sPath + QStringLiteral(" '. ") + kBlankLine +
               QStringLiteral("The following error was reported: ") + kNewLine + sError + kBlankLine +
               CannotDoWithout(),
           vbCritical);
}

void TellUnreadable(const QString& sPath, const QString& sError) {
    MsgBox(QStringLiteral("The following error was encountered trying to read the file named '") + sPath +
               QStringLiteral(" '. ") + kBlankLine + sError + kBlankLine + CannotDoWithout(),
           vbCritical);
}

[[noreturn]] void EndForRow(const QString& sPath, int iRow) {
    MsgBox(QStringLiteral("Row #") + QString::number(iRow) +
               QStringLiteral(" was not found where expected in the file named '") + sPath + QStringLiteral("'. ") +
               kBlankLine + QStringLiteral("Since we cannot get the rent values, the program is being terminated. ") +
               Reinstall(),
           vbCritical);
    EndProgram(1);
}

bool ReadRow(SequentialInput& input, Kit kit, qint16& iRow, RentRecord& rent, QString& sError) {
    const bool withAddStory = HasAddedStoreys(kit);
    return input.Read(iRow, sError) && input.Read(rent.Cost, sError) && input.Read(rent.RentSingle, sError) &&
           input.Read(rent.RentTwo, sError) && input.Read(rent.RentStory1, sError) &&
           input.Read(rent.RentStory2, sError) && (!withAddStory || input.Read(rent.RentAddStory, sError)) &&
           input.Read(rent.Extra, sError) && input.Read(rent.DefaultName, sError);
}

// All rows of the file, or the end of the program.
RentTable ReadTable(const QString& sPath) {
    QString error;
    const std::optional<QByteArray> bytes = Files::ReadAll(sPath, error);
    if (!bytes) {
        TellMissing(sPath, error);
        EndForRow(sPath, 0);
    }
    const RentReading reading = ReadRentRows(*bytes, TheGame().kit, Module().rents);
    if (reading.IsWhole()) return reading.rents;
    if (!reading.sError.isEmpty()) TellUnreadable(sPath, reading.sError);
    EndForRow(sPath, reading.iRows);
}

} // namespace

RentReading ReadRentRows(const QByteArray& bytes, Kit kit, const RentTable& before) {
    RentReading reading;
    reading.rents = before;
    SequentialInput input(TextFile::Decode(bytes));
    while (!reading.IsWhole() && !input.AtEnd()) {
        qint16 number = -1;
        RentRecord rent = reading.rents[size_t(reading.iRows)];
        if (!ReadRow(input, kit, number, rent, reading.sError) || number != reading.iRows) break;
        reading.rents[size_t(reading.iRows++)] = rent;
    }
    return reading;
}

const RentRecord& m_Rent(int iSpace) { return Module().rents[CheckedSubscript(iSpace, basTAVL::kSpaces)]; }

QString FormatCost(int lCost) {
    const QString sign = lCost < 0 ? QStringLiteral("-") : QString();
    return sign + QString::fromLatin1(Locale::kCurrencySign) + WithThousands(std::abs(lCost));
}

QString RentsPath() {
    QString folder = Folders::ProgramDirectory();
    // The other kits' rents have a column less and lie in a folder of their own.
    if (!LiesBesideTheProgram(TheGame().kit)) folder = basCommon::JoinPath(folder, QStringLiteral("older"));
    const QString path = basCommon::JoinPath(folder, QStringLiteral("Rents.dat"));
    return basCommon::DoesFileExist(path) ? path : basCommon::JoinPath(folder, QString::fromLatin1(Locale::kRents));
}

void ReadRents() try {
    State& module = Module();
    const QString path = RentsPath();
    const Files::Stamp stamp = Files::StampOf(path);
    const bool known = module.sPath == path && module.kit == TheGame().kit && module.stamp == stamp;
    if (!known || stamp == Files::Stamp{}) {
        module.rents = ReadTable(path);
        module.sPath = path;
        module.kit = TheGame().kit;
        module.stamp = stamp;
    }
    for (int iSpace = 0; iSpace < basTAVL::kSpaces; ++iSpace) {
        if (BoardFacts::IsForSale(iSpace)) basTAVL::g_oSpaces(iSpace).Cost = FormatCost(m_Rent(iSpace).Cost);
    }
} catch (...) {
    ErrTail("basPosit!", "ReadRents");
}

void ResetRentsForTest() { Module() = State{}; }

} // namespace basPosit
