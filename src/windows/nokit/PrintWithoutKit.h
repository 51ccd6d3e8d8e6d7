// SPDX-License-Identifier: MIT
#pragma once

#include "nokit/NoKitChoices.h"
#include "windows/print/MayPrintQuestion.h"

#include <QDialog>
#include <QString>

#include <functional>

class ElidedLabel;
class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;

/// Everything of the game on plain paper and card, for whoever has no boxed kit: asks once for paper, board, players
/// and colours, and makes one PDF file whose first page tells the rest.
class PrintWithoutKit : public QDialog {
    Q_OBJECT

public:
    explicit PrintWithoutKit(QWidget* parent = nullptr);

    /// Modal.
    void ShowForm();
    /// While the file is being made closing the window stops ahead of the next page.
    void reject() override;

    /// Told when pages are begun and when they are finished, so that the program isn't closed in between.
    std::function<void(bool bInPrint)> TellInPrint = [](bool) {};
    /// Asked ahead of the file, with the words of the kit's sheets: the same pieces stand on them.
    MayPrintQuestion MayPrint = [](QDialog&, const QStringList&) { return true; };

public Q_SLOTS:
    void cmdMake_Click();
    void cmdStop_Click();
    void cmdOpen_Click();
    void cmdShowFolder_Click();
    void ShowWhatFits();

private:
    void BuildControls();
    QLayout* BuildChoices();
    QLayout* BuildButtons();
    NoKitChoices Choices() const;
    void Make();
    bool Tell(const QString& sWhat, int iThousandths);
    void SetBusy(bool bBusy);

    QComboBox* m_paper = nullptr;
    QComboBox* m_size = nullptr;
    QDoubleSpinBox* m_inches = nullptr;
    QComboBox* m_way = nullptr;
    QComboBox* m_players = nullptr;
    QComboBox* m_colours = nullptr;
    QCheckBox* m_dice = nullptr;
    QLabel* m_told = nullptr;
    QProgressBar* m_progress = nullptr;
    ElidedLabel* m_page = nullptr;
    QPushButton* m_make = nullptr;
    QPushButton* m_stop = nullptr;
    QPushButton* m_close = nullptr;
    QPushButton* m_open = nullptr;
    QPushButton* m_showFolder = nullptr;

    bool m_bBusy = false;
    bool m_bStop = false;
    QString m_pdf;
};
