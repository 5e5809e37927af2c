// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/numberfield.h"

#include <QTest>

using namespace quirra;

Q_DECLARE_METATYPE(NumberField::Kind)

// The typing and stepping rules are driven through the form; these are the
// conversions the form only reaches with text that cannot be typed.
class TestNumberField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conversions_data();
    void conversions();
};

void TestNumberField::conversions_data()
{
    QTest::addColumn<NumberField::Kind>("kind");
    QTest::addColumn<float>("maximum");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("checked"); // after a key release
    QTest::addColumn<double>("stored");   // when the dialog is accepted

    const auto m = NumberField::Measure;
    const auto c = NumberField::Count;
    // An A4 page is 11.6929 inches high as a single: its height typed in
    // full is not above it.
    QTest::newRow("bound-compared-as-single") << m << 11.6929f << "11.6929"
                                              << "11.6929" << double(11.6929f);
    QTest::newRow("just-above-bound") << m << 11.6929f << "11.693"
                                      << "11.69" << double(11.693f);
    QTest::newRow("second-point-stored-as-read") << m << 11.0f << "1.2.3"
                                                 << "1.2.3" << double(1.23f);
    QTest::newRow("endless-digits") << m << 11.0f << QString(400, u'9') << "11." << 11.0;
    QTest::newRow("count-halves-to-even") << c << 100.0f << "2.5"
                                          << "2.5" << 2.0;
    QTest::newRow("count-rounds-up") << c << 100.0f << "3.7"
                                     << "3.7" << 4.0;
    QTest::newRow("count-beyond-16-bits") << c << 100.0f << "99999999"
                                          << "100." << 100.0;
}

void TestNumberField::conversions()
{
    QFETCH(NumberField::Kind, kind);
    QFETCH(float, maximum);
    QFETCH(QString, text);
    QFETCH(QString, checked);
    QFETCH(double, stored);
    const NumberField f(kind, kind == NumberField::Count ? 1 : 0, maximum);
    QCOMPARE(f.checked(text), checked);
    if (kind == NumberField::Measure)
        QCOMPARE(f.measureValue(text), float(stored));
    else
        QCOMPARE(f.countValue(text), qint16(stored));
}

QTEST_GUILESS_MAIN(TestNumberField)
#include "tst_numberfield.moc"
