// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "propertyassignment.h"

#include <QFont>
#include <QTest>

using namespace quirra;

// The kinds of property the control publishes, one each.
class Target : public QObject
{
    Q_OBJECT
    Q_PROPERTY(short Border MEMBER m_border)
    Q_PROPERTY(float Top MEMBER m_top)
    Q_PROPERTY(bool Visible MEMBER m_visible)
    Q_PROPERTY(QString Text MEMBER m_text)
    Q_PROPERTY(QFont Font MEMBER m_font)
    Q_PROPERTY(Align HorzAlign MEMBER m_align)
    Q_PROPERTY(Orient Orientation MEMBER m_orient)
    Q_PROPERTY(QString Fixed READ fixed)

public:
    enum Align : qint32 { haLeft = 0, haCenter = 1, haRight = 2 };
    Q_ENUM(Align)
    enum Orient : qint16 { eoPortrait = 0, eoLandscape = 1 };
    Q_ENUM(Orient)

    QString fixed() const { return QStringLiteral("fixed"); }

    short m_border = -1;
    float m_top = -1;
    bool m_visible = false;
    QString m_text = QStringLiteral("untouched");
    QFont m_font = QFont(QStringLiteral("DejaVu Serif"), 17, QFont::Bold, true);
    Align m_align = haLeft;
    Orient m_orient = eoPortrait;
};

class TestPropertyAssignment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsByType_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QVariant>("expected");

        QTest::newRow("short") << "Border=2" << QVariant::fromValue<short>(2);
        QTest::newRow("short-negative-with-blanks")
            << "Border= -32768 " << QVariant::fromValue<short>(-32768);
        QTest::newRow("float-inches") << "Top=0.25" << QVariant(0.25f);
        QTest::newRow("bool-word-any-case") << "Visible=TRUE" << QVariant(true);
        QTest::newRow("bool-digit") << "Visible=1" << QVariant(true);
        QTest::newRow("text-as-it-stands")
            << "Text=ACME Mail, 1 Main St" << QVariant("ACME Mail, 1 Main St");
        QTest::newRow("text-keeps-equals-and-blanks") << "Text= a=b " << QVariant(" a=b ");
        QTest::newRow("text-line-breaks-become-crlf") << "Text=a\\nb\\n" << QVariant("a\r\nb\r\n");
        QTest::newRow("text-escaped-backslash") << "Text=C:\\\\n\\x" << QVariant("C:\\n\\x");
        QTest::newRow("enum-by-name") << "HorzAlign=haRight" << QVariant(2);
        QTest::newRow("enum-by-name-any-case") << "HorzAlign=HACENTER" << QVariant(1);
        QTest::newRow("enum-by-number") << "HorzAlign=1" << QVariant(1);
        QTest::newRow("16-bit-enum-by-name") << "Orientation=eoLandscape" << QVariant(1);
        QFont serif = Target().m_font;
        serif.setFamily(QStringLiteral("Liberation Serif"));
        serif.setPointSizeF(14);
        QTest::newRow("font-family-and-size") << "Font=Liberation Serif, 14" << QVariant(serif);
        // A family alone keeps the size and style the property had.
        QFont mono = Target().m_font;
        mono.setFamily(QStringLiteral("Liberation Mono"));
        QTest::newRow("font-family-alone-keeps-the-rest")
            << "Font=Liberation Mono" << QVariant(mono);
        QFont full(QStringLiteral("DejaVu Sans"), 9, QFont::Bold, true);
        full.setUnderline(true);
        QTest::newRow("font-as-qfont-writes-it") << "Font=" + full.toString() << QVariant(full);
    }

    void setsByType()
    {
        QFETCH(QString, argument);
        QFETCH(QVariant, expected);

        PropertyAssignment assignment;
        QString error;
        QVERIFY(PropertyAssignment::parse(argument, &assignment, &error));
        Target target;
        QVERIFY2(assignment.apply(&target, &error), qPrintable(error));
        const QVariant actual = target.property(assignment.name().toLatin1().constData());
        if (actual.metaType().flags().testFlag(QMetaType::IsEnumeration))
            QCOMPARE(actual.toInt(), expected.toInt());
        else
            QCOMPARE(actual, expected);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *tag, const QString &assignment, const QString &message) {
            QTest::newRow(tag) << assignment << message;
        };

        row("unknown-name", "Bottom=1", "--set Bottom: the control has no property \"Bottom\"");
        row("wrong-case-suggests", "horzalign=1", "did you mean HorzAlign?");
        row("qobject-property-not-reachable", "objectName=x", "no property \"objectName\"");
        row("read-only", "Fixed=x", "--set Fixed: the property cannot be set");
        row("short-too-big", "Border=32768", "Border takes a whole number from -32768 to 32767");
        row("short-fraction", "Border=1.5", "Border takes a whole number");
        row("float-word", "Top=high", "Top takes a number with a full stop");
        row("float-infinite", "Top=inf", "Top takes a number");
        row("float-beyond-single", "Top=1e39", "Top takes a number");
        row("bool-yes", "Visible=yes", "Visible takes true or false (or 1 or 0)");
        row("enum-unknown-number", "HorzAlign=5",
            "HorzAlign takes one of haLeft (0), haCenter (1), haRight (2)");
        row("enum-other-enums-key", "Orientation=haLeft",
            "Orientation takes one of eoPortrait (0)");
        row("font-empty", "Font=", "Font takes a font");
        row("font-size-zero", "Font=Liberation Sans,0", "Font takes a font");
    }

    void refuses()
    {
        QFETCH(QString, argument);
        QFETCH(QString, error);

        PropertyAssignment assignment;
        QString actual;
        QVERIFY(PropertyAssignment::parse(argument, &assignment, &actual));
        Target target;
        QVERIFY(!assignment.apply(&target, &actual));
        QVERIFY2(actual.contains(error), qPrintable(actual));
        // Nothing was written.
        QCOMPARE(target.m_border, short(-1));
        QCOMPARE(target.m_top, -1.0f);
        QCOMPARE(target.m_text, QStringLiteral("untouched"));
        QCOMPARE(target.m_align, Target::haLeft);
        QCOMPARE(target.m_orient, Target::eoPortrait);
    }
};

QTEST_MAIN(TestPropertyAssignment)
#include "tst_propertyassignment.moc"
