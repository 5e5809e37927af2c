// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
//
// The control's about box, opened through its real modal loop.
#include "modaldriver.h"
#include "nowindowleft.h"

#include "control/quirra.h"
#include "model/piecemodel.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTest>

using namespace quirra;

class TestAboutBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PieceModel::resetShared(); }
    void cleanup() { verifyNoWindowLeft(); }

    void showsAndClosesOnItsButton_data();
    void showsAndClosesOnItsButton();
};

void TestAboutBox::showsAndClosesOnItsButton_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("contains");
    QTest::newRow("title") << "title_lbl"
                           << "QuirraControl";
    QTest::newRow("project-version") << "version_lbl" << QStringLiteral(QUIRRA_EXPECTED_VERSION);
}

void TestAboutBox::showsAndClosesOnItsButton()
{
    QFETCH(QString, label);
    QFETCH(QString, contains);
    Quirra control;
    control.show();
    QString shown;
    bool modal = false;
    QWidget *over = nullptr;
    ModalDriver driver;
    driver.onModal(QStringLiteral("about_box"), [&](QDialog *box) {
        modal = box->isModal();
        over = box->parentWidget();
        if (auto *found = box->findChild<QLabel *>(label))
            shown = found->text();
        auto *ok = box->findChild<QAbstractButton *>(QStringLiteral("ok_btn"));
        QVERIFY(ok);
        QTest::mouseClick(ok, Qt::LeftButton);
    });
    control.ShowAboutBox();

    QVERIFY(!driver.watchdogFired()); // OK closed it, not the watchdog
    QCOMPARE(driver.actionsRun(), 1);
    QVERIFY(modal);
    QCOMPARE(over, &control);
    QVERIFY2(shown.contains(contains), qPrintable(shown));
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
}

QTEST_MAIN(TestAboutBox)
#include "tst_aboutbox.moc"
