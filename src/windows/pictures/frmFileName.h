// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

class QAbstractButton;
class QButtonGroup;
class ElidedLabel;
class QLineEdit;

/// Asks what to do about a picture whose name is taken in the My Games directory: leave it, overwrite, or
/// take another name. Holds the program's rules for names in that directory.
class frmFileName : public QDialog {
    Q_OBJECT
public:
    explicit frmFileName(QWidget* parent = nullptr);

    /// The path to write to, or an empty text to leave the original picture.
    QString ShowForm(const QString& sFile);

    /// What is wrong with a new name (without extension), in words for the user; empty when nothing is.
    static QString FaultOf(const QString& sNewName);

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum Choice { LeaveOriginal = 0, Overwrite = 1, UseNewName = 2 };

    void BuildControls();
    void cmdGo_Click(int Index);
    void UseTheNewName();
    /// False after telling what is wrong with the new name; the focus is then back on it.
    bool txtNewName_LostFocus();

    ElidedLabel* lblCurrentName = nullptr;
    QLineEdit* txtNewName = nullptr;
    QButtonGroup* cmdGo = nullptr;
    QString m_sFile;
    QString m_sExtension;
    QString m_sResult;
};
