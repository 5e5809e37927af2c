// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "properties/jsonpropertybag.h"

#include "controlsteps.h"
#include "nowindowleft.h"

#include "control/propertytable.h"
#include "control/quirra.h"
#include "hostrecorder.h"
#include "model/error.h"
#include "model/piecemodel.h"
#include "properties/defaultset.h"
#include "publishedproperties.h"
#include "records/sharedspool.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace quirra;

namespace {

const QString ShippingLabels = QStringLiteral("5163 - Shipping Labels");

// The published 84, then the sheet's real size and the mailing options,
// after them so that a bag saved before reads as it always did.
QStringList savedNames()
{
    QStringList names;
    for (const PublishedProperty &property : SavedProperties)
        names.append(QLatin1String(property.name));
    return names + QStringList{"PageWidth",      "PageHeight",        "AddressBarcode",
                               "PieceStartSlot", "PieceOutlines",     "PrinterScaleX",
                               "PrinterScaleY",  "PrintDialogOnPrint"};
}

// Remembers what the control asks for; fails the names it is told to fail.
class ScriptedBag : public PropertyBag
{
public:
    QStringList reads, writes;
    QHash<QString, QVariant> answers; // an invalid answer is a failed read
    QString throwing;

    QVariant read(const QString &name, const QVariant &defaultValue) override
    {
        reads.append(name);
        if (name == throwing)
            throw Error(QStringLiteral("unreadable"));
        return answers.value(name, defaultValue);
    }
    void write(const QString &name, const QVariant &, const QVariant &) override
    {
        writes.append(name);
    }
};

} // namespace

class TestPersistence : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    HostRecorder m_host; // no message box in a test

    // Saves control into a file and reads it back into a fresh bag.
    JsonPropertyBag throughFile(const Quirra &control)
    {
        JsonPropertyBag bag;
        control.WriteProperties(bag);
        const QString path = m_dir.filePath(QStringLiteral("form.json"));
        bag.save(path);
        JsonPropertyBag reread;
        reread.load(path);
        return reread;
    }

private Q_SLOTS:
    void init()
    {
        PieceModel::resetShared();
        SharedSpool::reset();
    }

    void cleanup() { verifyNoWindowLeft(); }

    void savedInTheirOrder()
    {
        Quirra control;
        ScriptedBag bag;
        control.WriteProperties(bag);
        control.ReadProperties(bag);
        QCOMPARE(bag.writes, savedNames());
        QCOMPARE(bag.reads, savedNames());
    }

    void newControlInitialisedInOrder()
    {
        QStringList expected = {"ButtonMaxHeight",      "ButtonPgAdvanceVisible",
                                "ButtonPrintPgVisible", "ButtonPrintAllVisible",
                                "TextPgNumberVisible",  "BoarderInside",
                                "BoarderButtonTop",     "PieceName"};
        Quirra control;
        QSignalSpy spy(&control, &Quirra::propertyChanged);
        control.InitProperties();
        QCOMPARE(spy.size(), 92 + 74);
        for (int i = 0; i < 74; ++i) // what PieceName announces besides itself
            expected.append(spy.at(expected.size()).at(0).toString());
        expected.append(QStringLiteral("EnvelopeOrientation"));
        const QStringList group = {"Font",   "Border", "Visible",   "Top",      "Left",
                                   "Height", "Width",  "HorzAlign", "VertAlign"};
        const QStringList items = {"Address", "Message1", "Message2", "Return", "Stamp"};
        for (const QString &field : group)
            expected.append(QStringLiteral("Address") + field);
        for (const char *field : {"Wrap", "Text", "LineSpacing"}) {
            for (const QString &item : items)
                expected.append(item + field);
        }
        for (const QString &item : items.mid(1)) {
            for (const QString &field : group)
                expected.append(item + field);
        }
        expected +=
            QStringList{"PreviewZoom",   "PieceMarginLeft", "PieceMarginTop",    "PieceHeight",
                        "PieceWidth",    "PiecePitchHorz",  "PiecePitchVert",    "PrinterLeft",
                        "PrinterTop",    "PieceNumAcross",  "PieceNumDown",      "PieceOrientation",
                        "PageSizeNum",   "PageSize",        "IsCustom",          "PageWidth",
                        "PageHeight",    "AddressBarcode",  "PieceStartSlot",    "PieceOutlines",
                        "PrinterScaleX", "PrinterScaleY",   "PrintDialogOnPrint"};
        QStringList names;
        for (const QList<QVariant> &arguments : spy)
            names.append(arguments.at(0).toString());
        QCOMPARE(names, expected);
    }

    void everyPropertyRoundTrips()
    {
        // Each saved property set to a value of its own, saved, read back.
        JsonPropertyBag bag;
        QVariantList saved;
        {
            Quirra original;
            int seed = 0;
            for (const PropertyInfo *property : PropertyTable::savedInOrder())
                property->write(original, steps::distinctValue(*property, ++seed));
            for (const PropertyInfo *property : PropertyTable::savedInOrder())
                saved.append(property->read(original));
            bag = throughFile(original);
        }
        PieceModel::resetShared();
        Quirra reopened;
        reopened.ReadProperties(bag);
        int i = 0;
        for (const PropertyInfo *property : PropertyTable::savedInOrder()) {
            const QVariant read = property->read(reopened), &value = saved.at(i++);
            if (value.metaType() == QMetaType::fromType<QFont>())
                QCOMPARE(read.value<QFont>().toString(), value.value<QFont>().toString());
            else
                QVERIFY2(read == value, qPrintable(property->name));
        }
    }

    void newControlSavedAndReopened()
    {
        JsonPropertyBag bag;
        {
            Quirra original;
            original.AddressText(QStringLiteral("Set at design time")); // never saved
            bag = throughFile(original);
        }
        // A new control frames its stamp, unlike the saved default; everything
        // else equals its default and is left out.
        QCOMPARE(bag.values().keys(), QStringList{QStringLiteral("StampBorder")});
        Quirra reopened;
        reopened.StampBorder(0);
        reopened.ReadProperties(bag);
        QCOMPARE(reopened.StampBorder(), short(2));
        QCOMPARE(reopened.AddressText(), QString());
    }

    void bagWithOnlyThePieceName()
    {
        JsonPropertyBag bag;
        bag.setValues(QJsonObject{{QStringLiteral("PieceName"), ShippingLabels}});
        Quirra control;
        control.ReadProperties(bag);
        // The name stays; the geometry and boxes read after it are the defaults,
        // the values of "Size 10 - Envelope".
        QCOMPARE(control.PieceName(), ShippingLabels);
        const DefaultSet &set = control.defaultSet();
        QCOMPARE(control.PieceNumDown(), set.piece.PieceNumDown);
        QCOMPARE(control.PieceWidth(), 9.5f);
        QCOMPARE(control.ReturnTop(), set.item(ItemId::Return).Top);
        QCOMPARE(control.StampBorder(), short(0));
        QCOMPARE(control.ReturnText(), QString());
        QCOMPARE(control.AddressLineSpacing(), short(100));
    }

    void readValues_data()
    {
        // expected: invalid: the inherited font
        const Rows<QString, QJsonValue, QVariant> row("name", "saved", "expected");
        row("button-height-clamped", "ButtonMaxHeight", QJsonValue(1000), QVariant(400));
        row("text-for-a-number", "ButtonMaxHeight", QJsonValue("tall"), QVariant(240));
        row("fraction-for-a-count", "PieceNumDown", QJsonValue(2.5), QVariant(1));
        row("count-beyond-16-bits", "PieceNumAcross", QJsonValue(70000), QVariant(1));
        row("text-for-a-flag", "AddressVisible", QJsonValue("yes"), QVariant(true));
        row("number-for-a-text", "Message1Text", QJsonValue(5), QVariant(QString()));
        row("null-for-a-text", "StampText", QJsonValue(), QVariant(QString()));
        row("text-for-a-length", "PrinterLeft", QJsonValue("wide"), QVariant(0.25));
        row("length-beyond-float", "PrinterLeft", QJsonValue(1e300), QVariant(0.25));
        row("name-for-an-enumeration", "EnvelopeOrientation", QJsonValue("portrait"), QVariant(1));
        row("saved-portrait", "EnvelopeOrientation", QJsonValue(0), QVariant(0));
        row("number-for-a-font", "AddressFont", QJsonValue(12), QVariant());
        row("empty-font", "AddressFont", QJsonValue(""), QVariant());
    }

    void readValues()
    {
        auto [name, saved, expected] =
            fetched<QString, QJsonValue, QVariant>("name", "saved", "expected");
        JsonPropertyBag bag;
        // Icon1 is read last: reading goes on after a bad value.
        bag.setValues(
            QJsonObject{{name, saved}, {QStringLiteral("Icon1"), QStringLiteral("kept")}});
        Quirra control;
        control.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 11));
        // Something else than the expected value, so that taking it shows.
        QVariant other = 7;
        if (name == QLatin1String("AddressFont"))
            other = QFont(QStringLiteral("DejaVu Serif"));
        else if (name == QLatin1String("AddressVisible"))
            other = false;
        control.setProperty(name.toLatin1(), other);
        control.ReadProperties(bag);
        const QVariant read = control.property(name.toLatin1());
        if (!expected.isValid()) {
            QCOMPARE(read.value<QFont>().family(), QStringLiteral("DejaVu Sans Mono"));
        } else {
            QVERIFY(expected.convert(read.metaType()));
            QCOMPARE(read, expected);
        }
        QCOMPARE(control.Icon1(), QStringLiteral("kept"));
    }

    void bagFailuresTakeDefaults()
    {
        Quirra control;
        control.PreviewZoom(80);
        control.BoarderInside(100);
        control.PieceNumDown(9);
        ScriptedBag bag;
        bag.throwing = QStringLiteral("PreviewZoom");
        bag.answers.insert(QStringLiteral("BoarderInside"), QVariant());
        bag.answers.insert(QStringLiteral("PieceNumDown"), QStringLiteral("many"));
        control.ReadProperties(bag);
        QCOMPARE(control.PreviewZoom(), short(30));
        QCOMPARE(control.BoarderInside(), short(60));
        QCOMPARE(control.PieceNumDown(), control.defaultSet().piece.PieceNumDown);
        QCOMPARE(bag.reads.size(), 92);
    }

    void fontsDefaultToTheInheritedFont()
    {
        Quirra control;
        control.setFont(QFont(QStringLiteral("DejaVu Serif"), 15));
        control.InitProperties();
        QCOMPARE(control.StampFont().family(), QStringLiteral("DejaVu Serif"));
        QCOMPARE(control.StampFont().pointSize(), 15);
        JsonPropertyBag bag;
        control.WriteProperties(bag);
        QVERIFY(!bag.values().contains(QStringLiteral("StampFont")));
        // Against another inherited font the item fonts are no longer defaults.
        control.setFont(QFont(QStringLiteral("DejaVu Sans"), 11));
        control.WriteProperties(bag);
        QVERIFY(bag.values()
                    .value(QStringLiteral("StampFont"))
                    .toString()
                    .startsWith("DejaVu Serif,15"));
        JsonPropertyBag empty;
        control.ReadProperties(empty);
        QCOMPARE(control.StampFont().family(), QStringLiteral("DejaVu Sans"));
    }

    void fileErrors_data()
    {
        // content: empty: no file
        columns<QByteArray, QString>("content", "problem");
        QTest::newRow("missing-file") << QByteArray() << "Cannot read";
        QTest::newRow("broken-json") << QByteArray("{\"PieceName\": ") << "not valid JSON";
        QTest::newRow("array-not-object") << QByteArray("[1, 2]") << "no JSON object";
    }

    void fileErrors()
    {
        const auto [content, problem] = fetched<QByteArray, QString>("content", "problem");
        const QString path = m_dir.filePath(QString::fromLatin1(QTest::currentDataTag()));
        if (!content.isEmpty()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        JsonPropertyBag bag;
        bag.setValues(QJsonObject{{QStringLiteral("Icon1"), QStringLiteral("before")}});
        try {
            bag.load(path);
            QFAIL("no error");
        } catch (const Error &e) {
            QVERIFY2(e.message().contains(path) && e.message().contains(problem),
                     qPrintable(e.message()));
        }
        QCOMPARE(bag.values().value(QStringLiteral("Icon1")).toString(), QStringLiteral("before"));
        QVERIFY_THROWS_EXCEPTION(Error, bag.save(QStringLiteral("/quirra-no-such-dir/form.json")));
    }
};

QTEST_MAIN(TestPersistence)
#include "tst_persistence.moc"
