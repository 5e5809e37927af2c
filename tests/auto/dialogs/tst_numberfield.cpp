// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "dialogs/numberfield.h"

#include <QTest>

using namespace quirra;

Q_DECLARE_METATYPE(NumberField::Kind)

// The typing and stepping rules are driven through the form; these are the
// conversions the form only reaches with text that cannot be typed.
struct ConversionRow
{
    NumberField::Kind kind;
    float maximum;
    QString text;
    QString checked; // after a key release
    double stored;   // when the dialog is accepted
};

class TestNumberField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void conversions_data()
    {
        QTest::addColumn<ConversionRow>("row");

        const auto m = NumberField::Measure;
        const auto c = NumberField::Count;
        // An A4 page is 11.6929 inches high as a single: its height typed in
        // full is not above it.
        QTest::newRow("bound-compared-as-single")
            << ConversionRow{m, 11.6929f, "11.6929", "11.6929", double(11.6929f)};
        QTest::newRow("just-above-bound")
            << ConversionRow{m, 11.6929f, "11.693", "11.69", double(11.693f)};
        QTest::newRow("second-point-stored-as-read")
            << ConversionRow{m, 11.0f, "1.2.3", "1.2.3", double(1.23f)};
        QTest::newRow("endless-digits") << ConversionRow{m, 11.0f, QString(400, u'9'), "11.", 11.0};
        QTest::newRow("count-halves-to-even") << ConversionRow{c, 100.0f, "2.5", "2.5", 2.0};
        QTest::newRow("count-rounds-up") << ConversionRow{c, 100.0f, "3.7", "3.7", 4.0};
        QTest::newRow("count-beyond-16-bits")
            << ConversionRow{c, 100.0f, "99999999", "100.", 100.0};
    }

    void conversions()
    {
        QFETCH(ConversionRow, row);
        const NumberField f(row.kind, row.kind == NumberField::Count ? 1 : 0, row.maximum);
        QCOMPARE(f.checked(row.text), row.checked);
        if (row.kind == NumberField::Measure)
            QCOMPARE(f.measureValue(row.text), float(row.stored));
        else
            QCOMPARE(f.countValue(row.text), qint16(row.stored));
    }
};

QTEST_GUILESS_MAIN(TestNumberField)
#include "tst_numberfield.moc"
