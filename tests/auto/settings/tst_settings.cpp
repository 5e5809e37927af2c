// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "columns.h"
#include "settings/defaultlayout.h"
#include "settings/files.h"
#include "settings/profile.h"
#include "settings/settings.h"
#include "settings/strings.h"
#include "settings/units.h"

#include "model/error.h"
#include "model/piecemodel.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cerrno>
#include <climits>
#include <cmath>

#include <sys/stat.h>

using namespace quirra;

namespace {
constexpr int Overflow = INT_MIN;

void layOut(PieceModel &m, float h, float w)
{
    DefaultLayout(h, w, m.item(ItemId::Address), m.item(ItemId::Return), m.item(ItemId::Stamp),
                  m.item(ItemId::Message1), m.item(ItemId::Message2));
}
} // namespace

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readSettingList_data()
    {
        // slots: joined by "|"; its parts give the list's bound
        columns<QByteArray, QString, int>("keys", "slots", "last");

        QTest::newRow("gap-leaves-empty-slot")
            << QByteArray("size(1)=a\nsize(3)=c") << "a||c||" << 3;
        QTest::newRow("first-entries-missing") << QByteArray("size(3)=c") << "||c" << 3;
        QTest::newRow("marker-empty-but-present") << QByteArray("size(2)=`") << "|||" << 2;
        QTest::newRow("bare-key-alone") << QByteArray("Size=only") << "only||" << 1;
        QTest::newRow("bare-key-marker") << QByteArray("size=`") << "|" << 1;
        QTest::newRow("bare-key-ignored-beside-indexed")
            << QByteArray("size=x\nSIZE(2)=b") << "|b" << 2;
        QTest::newRow("index-beyond-bound-unseen") << QByteArray("size(4)=d") << "||" << 0;
        QTest::newRow("quoted-blank-counts-as-present") << QByteArray("size(1)=\"  \"") << "|" << 1;
        QTest::newRow("quoted-padding-trimmed") << QByteArray("size(1)=\" a \"") << "a" << 1;
    }

    void readSettingList()
    {
        const auto [keys, slots] = fetched<QByteArray, QString>("keys", "slots");
        const QStringList expected = slots.split(u'|');
        QStringList got(expected.size(), QStringLiteral("stale"));
        QTEST(ReadSettingList(write("[S]\n" + keys), QStringLiteral("S"), QStringLiteral("size"),
                              got),
              "last");
        QCOMPARE(got, expected);
    }

    void readSettingOr()
    {
        const QString file = write("[S]\nblank=\"   \"\nempty=\npadded=\" v \"");
        auto read = [&](const char *key) {
            return ReadSettingOr(file, QStringLiteral("S"), QLatin1String(key),
                                 QStringLiteral("D"));
        };
        QCOMPARE(read("blank"), QStringLiteral("D"));
        QCOMPARE(read("empty"), QStringLiteral("D"));
        QCOMPARE(read("missing"), QStringLiteral("D"));
        QCOMPARE(read("padded"), QStringLiteral(" v ")); // kept untrimmed
    }

    void parseBoolean_data()
    {
        columns<QString, bool>("text", "expected");
        QTest::newRow("yes-lower-case") << "yes" << true;
        QTest::newRow("on-with-blanks") << "  On " << true;
        QTest::newRow("minus-one") << "-1" << true;
        QTest::newRow("two") << "2" << false;
        QTest::newRow("true-with-full-stop") << "TRUE." << false;
        QTest::newRow("one-point-zero") << "1.0" << false;
    }

    void parseBoolean()
    {
        QFETCH(QString, text);
        QTEST(ParseBoolean(text), "expected");
    }

    void parseNumbers_data()
    {
        // integer: Overflow: ParseInteger throws
        columns<QString, bool, double, float, int>("text", "numeric", "number", "single",
                                                   "integer");
        // single: NaN when it is the number as a float.
        const auto row = [](const char *tag, const QString &text, bool numeric, double number,
                            int integer, float single = qQNaN()) {
            QTest::newRow(tag) << text << numeric << number
                               << (qIsNaN(single) ? float(number) : single) << integer;
        };

        row("point-alone", ".", false, 0.0, 0);
        row("empty", "", false, 0.0, 0);
        row("decimal-with-blanks", " 1.5 ", true, 1.5, 2);
        row("halves-round-to-even-down", "2.5", true, 2.5, 2);
        row("negative-half-to-even", "-2.5", true, -2.5, -2);
        row("plus-sign-and-exponent", "+1e2", true, 100.0, 100);
        row("largest-16-bit", "32767", true, 32767.0, 32767);
        row("smallest-16-bit", "-32768.4", true, -32768.4, -32768);
        row("comma-is-not-a-point", "1,5", false, 0.0, 0);
        row("trailing-unit", "1.5in", false, 0.0, 0);
        row("infinity-word", "inf", false, 0.0, 0);
        row("beyond-double", "1e999", false, 0.0, 0);
        row("one-past-the-top", "32768", true, 32768.0, Overflow);
        row("one-past-the-bottom", "-32769", true, -32769.0, Overflow);
        row("half-rounds-past-the-top", "32767.5", true, 32767.5, Overflow);
        row("beyond-single-is-no-single", "1e39", true, 1e39, Overflow, 0.0f);
        row("far-beyond-64-bits", "1e300", true, 1e300, Overflow, 0.0f);
    }

    void parseNumbers()
    {
        const auto [text, integer] = fetched<QString, int>("text", "integer");
        QTEST(IsNumeric(text), "numeric");
        QTEST(ParseDouble(text), "number");
        QTEST(ParseSingle(text), "single");
        if (integer == Overflow)
            QVERIFY_THROWS_EXCEPTION(Error, ParseInteger(text));
        else
            QCOMPARE(int(ParseInteger(text)), integer);
    }

    void splitAndTrim_data()
    {
        // TextBefore, TextAfter, TextAfterLast, TrimBlanks, TrimTrailingBlanks, joined by "/".
        columns<QString, QString, QString>("text", "separator", "results");

        const auto row = [](const char *tag, const QString &text, const QString &separator,
                            const QString &results) {
            QTest::newRow(tag) << text << separator << results;
        };
        row("first-and-last-differ", "a|b|c", "|", "a/b|c/c/a|b|c/a|b|c");
        row("absent-separator", "plain", "|", "plain//plain/plain/plain");
        row("case-counts", "aXbxc", "x", "aXb/c/c/aXbxc/aXbxc");
        // An empty separator never occurs, so a list split by it ends at once.
        row("empty-separator", "abc", "", "abc//abc/abc/abc");
        row("blanks-trimmed-inner-kept", "  1  Main ", "|",
            "  1  Main //  1  Main /1  Main/  1  Main");
        row("only-spaces-are-blanks", "\tC1\n ", "|", "\tC1\n //\tC1\n /\tC1\n/\tC1\n");
    }

    void splitAndTrim()
    {
        const auto [text, separator] = fetched<QString, QString>("text", "separator");

        const QStringList got = {TextBefore(text, separator), TextAfter(text, separator),
                                 TextAfterLast(text, separator), TrimBlanks(text),
                                 TrimTrailingBlanks(text)};
        QTEST(got.join(QLatin1Char('/')), "results");
    }

    void formatNumber_data()
    {
        const Rows<double, QString, QString> row("value", "pattern", "expected");

        row("whole-number-keeps-point", 2.0, "#0.##", "2.");
        row("half-away-on-15-digits", 2.675, "#0.##", "2.68");
        row("negative-half-away", -2.675, "#0.##", "-2.68");
        row("rounds-to-zero-without-minus", -0.001, "#0.##", "0.");
        row("carry-into-a-new-digit", 9.999, "#0.##", "10.");
        row("hash-drops-leading-zero", 0.5, "#.##", ".5");
        row("fixed-decimals-padded", 2.0, "0.00", "2.00");
        row("fixed-decimals-rounded", 0.125, "0.00", "0.13");
        row("whole-half-away", -2.5, "#0", "-3");
        row("tiny-number", 1e-20, "#0.##", "0.");
        // Nothing but the half just past the last decimal shown.
        row("half-past-the-last-decimal-rounds-up", 0.005, "#0.##", "0.01");
        row("below-half-past-the-last-decimal", 0.0049, "#0.##", "0.");
        row("text-around-kept", 2.0, "0.00 in", "2.00 in");
        row("decimals-past-the-fifteenth-digit-are-zero", 0.1, "0.0000000000000000",
            "0.1000000000000000");
    }

    void formatNumber()
    {
        const auto [value, pattern] = fetched<double, QString>("value", "pattern");
        QTEST(FormatNumber(value, pattern), "expected");
    }

    void displayTwipsToText_data()
    {
        columns<float, double, QString>("scale", "twips", "expected");

        QTest::newRow("zero-scale-taken-as-one") << 0.0f << 1440.0 << "1.";
    }

    void displayTwipsToText()
    {
        const auto [scale, twips] = fetched<float, double>("scale", "twips");
        if (scale <= 0)
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("display scale")));
        QTEST(DisplayTwipsToText(twips, scale), "expected");
        // A length placed on the editor's surface shows as itself.
        if (scale > 0)
            QCOMPARE(DisplayTwipsToText(InchesToDisplayTwips(4.333, scale), scale),
                     QStringLiteral("4.33"));
    }

    void tiesGiveTheSecondArgument()
    {
        // +0 and -0 are equal, so the sign tells which argument came back.
        QVERIFY(std::signbit(Larger(0.0f, -0.0f)));
        QVERIFY(!std::signbit(Larger(-0.0f, 0.0f)));
        QVERIFY(std::signbit(Smaller(0.0f, -0.0f)));
        QVERIFY(!std::signbit(Smaller(-0.0f, 0.0f)));
        QCOMPARE(Larger(3, 2), 3.0f);
        QCOMPARE(Smaller(3, 2), 2.0f);
    }

    // Every row looks up key "k" of section "A"; "<none>" means not found.
    void lookup_data()
    {
        columns<QByteArray, QString>("text", "expected");
        const QByteArray longValue(300, 'a');
        const QString cut(254, u'a');

        QTest::newRow("names-ignore-case") << QByteArray("[a]\nK=v") << "v";
        QTest::newRow("first-section-wins") << QByteArray("[A]\nk=1\n[a]\nk=2") << "1";
        QTest::newRow("repeated-section-unseen") << QByteArray("[A]\nj=1\n[a]\nk=2") << "<none>";
        QTest::newRow("first-key-wins") << QByteArray("[A]\nk=1\nK=2") << "1";
        QTest::newRow("empty-value-is-present") << QByteArray("[A]\nk=\nk=2") << "";
        QTest::newRow("blanks-around-names-and-value")
            << QByteArray("[ A ]\n \tk\t=  v w \t") << "v w";
        QTest::newRow("double-quotes-removed") << QByteArray("[A]\nk=\" x \"") << " x ";
        QTest::newRow("mismatched-quotes-kept") << QByteArray("[A]\nk=\"x'") << "\"x'";
        QTest::newRow("commas-and-equals-kept") << QByteArray("[A]\nk=a,b=c") << "a,b=c";
        QTest::newRow("comment-skipped") << QByteArray("[A]\n ;k=1\nk=2") << "2";
        QTest::newRow("crlf-line-ends") << QByteArray("[A]\r\nj=1\r\nk=2\r\n") << "2";
        QTest::newRow("line-without-equals-skipped") << QByteArray("[A]\nk\nk=1") << "1";
        QTest::newRow("line-with-nul-skipped") << QByteArray("[A]\nk=\0x\nk=2", 12) << "2";
        QTest::newRow("invalid-utf8-replaced") << QByteArray("[A]\nk=\xFF"
                                                             "ok")
                                               << "\uFFFDok";
        QTest::newRow("key-before-any-section-unseen") << QByteArray("k=1\n[A]") << "<none>";
        QTest::newRow("byte-order-mark") << QByteArray("\xEF\xBB\xBF[A]\nk=1") << "1";
        QTest::newRow("value-cut-at-254") << QByteArray("[A]\nk=" + longValue) << cut;
        QTest::newRow("quotes-removed-before-cut")
            << QByteArray("[A]\nk=\"" + longValue + "\"") << cut;
    }

    void lookup()
    {
        const auto [text, expected] = fetched<QByteArray, QString>("text", "expected");
        const ProfileFile profile = ProfileFile::fromText(text);
        const QString *found = profile.find(QStringLiteral(" a "), QStringLiteral("K"));
        QCOMPARE(found ? *found : QStringLiteral("<none>"), expected);
        QCOMPARE(read(write(text, QStringLiteral("lookup.ini"))), expected);
    }

    void changedFileIsSeen_data()
    {
        // secondsLater: -1: the file is removed
        columns<QByteArray, int, QString>("second", "secondsLater", "expected");
        // A grown file gets its old time back: only the size tells the change.
        QTest::newRow("grown-file-same-time") << QByteArray("[A]\nk=longer") << 0 << "longer";
        QTest::newRow("same-size-newer-time") << QByteArray("[A]\nk=two") << 2 << "two";
        // Only the change time (the inode's) tells this one.
        QTest::newRow("same-size-same-time") << QByteArray("[A]\nk=two") << 0 << "two";
        QTest::newRow("file-removed") << QByteArray() << -1 << "<none>";
    }

    void changedFileIsSeen()
    {
        const auto [second, secondsLater] = fetched<QByteArray, int>("second", "secondsLater");
        const QString name = QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".ini");
        const QString path = write("[A]\nk=one", name);
        QCOMPARE(read(path), QStringLiteral("one"));
        if (secondsLater < 0) {
            QVERIFY(QFile::remove(path));
        } else {
            const QDateTime before = QFileInfo(path).lastModified();
            write(second, name);
            QFile f(path);
            QVERIFY(f.open(QIODevice::ReadWrite));
            QVERIFY(f.setFileTime(before.addSecs(secondsLater), QFileDevice::FileModificationTime));
        }
        QTEST(read(path), "expected");
    }

    void pipeOrFolderReadsAsMissing()
    {
        // Opening a pipe would wait for a writer that never comes.
        const QString pipe = m_dir.filePath(QStringLiteral("pipe.ini"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QCOMPARE(read(pipe), QStringLiteral("<none>"));
        QCOMPARE(read(m_dir.path()), QStringLiteral("<none>"));
    }

    void junkParsesInLinearTime_data()
    {
        columns<bool>("oneLine");
        QTest::newRow("random-bytes") << false;
        QTest::newRow("one-ten-megabyte-line") << true;
    }

    void junkParsesInLinearTime()
    {
        QFETCH(bool, oneLine);
        QByteArray junk(10 * 1024 * 1024, Qt::Uninitialized);
        QRandomGenerator random(20260101);
        for (char &c : junk) {
            c = char(random.bounded(256));
            if (oneLine && (c == '\n' || c == '\r'))
                c = '=';
        }
        const QString path = write("[A]\n" + junk, QStringLiteral("junk.ini"));
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(read(path), QStringLiteral("<none>"));
        qDebug("10 MB of junk parsed in %lld ms", timer.elapsed());
        QVERIFY2(timer.elapsed() < 10000, "parsing must stay linear in the file's size");
    }

    void makeTempFileName_data()
    {
        // expected: the name's pattern, or what the error says
        const Rows<QString, QString, QString> row("prefix", "folder", "expected");

        row("spool-prefix", "qzv", "", "^qzv\\w{6}\\.tmp$");
        row("long-prefix-cut-to-three", "quirra", "", "^qui\\w{6}\\.tmp$");
        row("slash-cannot-leave-the-folder", "../x", "", "^\\.\\._\\w{6}\\.tmp$");
        row("missing-folder-explained", "qzv", "/gone", "No such file.*TMPDIR");
    }

    void makeTempFileName()
    {
        const auto [prefix, folder, expected] =
            fetched<QString, QString, QString>("prefix", "folder", "expected");

        const QString dir = m_dir.path() + folder;
        qputenv("TMPDIR", QFile::encodeName(dir));
        QString path;
        try {
            path = MakeTempFileName(prefix);
        } catch (const Error &error) {
            const QString message = error.message();
            QVERIFY2(message.contains(dir) && message.contains(QRegularExpression(expected)),
                     qPrintable(message));
            return;
        }
        QVERIFY(folder.isEmpty() && MakeTempFileName(prefix) != path);
        const QFileInfo info(path);
        QCOMPARE(info.absolutePath(), dir);
        QVERIFY2(info.fileName().contains(QRegularExpression(expected)), qPrintable(path));
        QCOMPARE(info.size(), 0);
        // Read and write for the owner only: the spool holds people's addresses.
        QCOMPARE(int(info.permissions() & 0x7077), int(QFile::ReadOwner | QFile::WriteOwner));
    }

    void temporaryFolderProblems()
    {
        // What the user can do about it depends on why the folder took no file.
        for (const auto &[code, advice] :
             {std::pair{ENOSPC, "is full (No space left on device): free"},
              {EDQUOT, "is full (Disk quota exceeded): free"},
              {ENOTDIR, "is missing (Not a directory): create it"},
              {EACCES, "Cannot create a temporary file in"}}) {
            const QString text = TemporaryDirectoryProblem(QStringLiteral("/tmp/q"), code);
            QVERIFY2(text.contains(QLatin1String(advice)) && text.contains(QLatin1String("/tmp/q")),
                     qPrintable(text));
        }
    }

    void catalogueLocations()
    {
        qputenv("QUIRRA_SYSTEM_DIR", " /opt/q ");
        qputenv("QUIRRA_PAPER_CATALOGUE", "");
        QCOMPARE(SystemDirectory() + PaperCatalogueFile(),
                 QStringLiteral("/opt/q//opt/q/quirra.cfg"));
        qputenv("QUIRRA_SYSTEM_DIR", "/opt/q/");
        qputenv("QUIRRA_PAPER_CATALOGUE", "/etc/papers.cfg");
        QCOMPARE(SystemDirectory() + PaperCatalogueFile(),
                 QStringLiteral("/opt/q//etc/papers.cfg"));

        // Unset: the catalogue beside the program, as after installation.
        qunsetenv("QUIRRA_SYSTEM_DIR");
        const QString beside = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                               QStringLiteral("/../share/quirra/"));
        if (!QFile::exists(beside + QStringLiteral("/quirra.cfg"))) {
            QSKIP("the build tree holds no catalogue");
        }
        QCOMPARE(SystemDirectory(), beside + QLatin1Char('/'));
    }

    void deleteFileAndWait()
    {
        const QString path = m_dir.filePath(QStringLiteral("qzvABCDEF.tmp"));
        QVERIFY(!FileExists(path) && !FileExists(QString()) && !FileExists(m_dir.path()));
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        QVERIFY(FileExists(path));
        DeleteFileAndWait(path);
        QVERIFY(!QFile::exists(path));

        // A file anyone can read and nobody can delete, not even root: the wait
        // gives up after about 5 s, processing events meanwhile.
        const QString undeletable = QStringLiteral("/proc/self/status");
        if (!FileExists(undeletable)) {
            QSKIP("no /proc on this system");
        }
        bool yielded = false;
        QTimer::singleShot(0, this, [&yielded] { yielded = true; });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("Gave up waiting")));
        QElapsedTimer clock;
        clock.start();
        DeleteFileAndWait(undeletable);
        const qint64 waited = clock.elapsed();
        QVERIFY2(waited >= 4000 && waited < 10000, qPrintable(QString::number(waited)));
        QVERIFY(yielded);
    }

    void boxes_data()
    {
        // box: top, left, height, width (inches)
        const Rows<float, float, int, QList<float>, bool> row("h", "w", "item", "box", "visible");
        using B = QList<float>;
        const int a = int(ItemId::Address), r = int(ItemId::Return), s = int(ItemId::Stamp),
                  m1 = int(ItemId::Message1), m2 = int(ItemId::Message2);

        row("no10-address", 4.125f, 9.5f, a, B{1.75f, 4.3333f, 1.5f, 3}, true);
        row("no10-message1-capped", 4.125f, 9.5f, m1, B{2.525f, 0.1f, 1.5f, 3}, true);
        row("label-address", 1.f, 2.625f, a, B{0.0333f, 0.0875f, 0.95f, 2.4938f}, true);
        row("label-message1-floor", 1.f, 2.625f, m1, B{-0.6f, 0.1f, 1.5f, 2}, false);
        // Either side of h = 3.3, where the address bottom meets Message 2's top.
        row("message2-just-clear", 3.31f, 4.f, m2, B{2.71f, 2.4f, 0.5f, 1.5f}, true);
        row("message2-just-over", 3.29f, 4.f, m2, B{2.69f, 2.4f, 0.5f, 1.5f}, false);
        // Either side of where the stamp meets the address's right edge (w = 5.61)
        // and its top (h = 2.94).
        row("stamp-just-clear-right", 2.f, 5.62f, s, B{0.05f, 4.75f, 0.91f, 0.82f}, true);
        row("stamp-just-over-right", 2.f, 5.6f, s, B{0.05f, 4.73f, 0.91f, 0.82f}, false);
        row("stamp-just-clear-above", 2.95f, 4.f, s, B{0.05f, 3.13f, 0.91f, 0.82f}, true);
        row("stamp-just-over-above", 2.93f, 4.f, s, B{0.05f, 3.13f, 0.91f, 0.82f}, false);
        // The return box's right edge on the address's left one: touching is overlapping.
        row("return-touching-the-address", 2.f, 6.075f, r, B{0.05f, 0.05f, 1.1f, 2}, false);
        row("return-clear-on-the-left", 2.f, 8.f, r, B{0.05f, 0.05f, 1.1f, 2}, true);
        row("message1-between-bounds", 4.f, 6.5f, m1, B{2.4f, 0.1f, 1.5f, 2.1f}, true);
    }

    void boxes()
    {
        auto [h, w, item, box, visible] =
            fetched<float, float, int, QList<float>, bool>("h", "w", "item", "box", "visible");
        PieceModel m;
        for (Item &it : m.items)
            it.Visible = !visible; // the layout must set it either way
        layOut(m, h, w);
        const Item &got = m.item(ItemId(item));
        const QList<float> actual = {got.Top, got.Left, got.Height, got.Width};
        for (int i = 0; i < 4; ++i) {
            QVERIFY2(std::fabs(actual[i] - box[i]) < 5e-4,
                     qPrintable(QStringLiteral("value %1 is %2").arg(i).arg(actual[i])));
        }
        QCOMPARE(got.Visible, visible);
    }

    void texts_data()
    {
        columns<int, QString, QString>("item", "before", "after");
        QTest::newRow("blank-address-gets-default") << int(ItemId::Address) << "   "
                                                    << "Delivery Address";
        QTest::newRow("padded-text-kept-as-is") << int(ItemId::Return) << " Me "
                                                << " Me ";
        QTest::newRow("stamp-three-blanks-round-paid")
            << int(ItemId::Stamp) << ""
            << "Bulk Rate U.S. Postage   PAID   Permit No. 00001";
    }

    void texts()
    {
        const auto [item, before] = fetched<int, QString>("item", "before");
        PieceModel m;
        m.item(ItemId(item)).Text = before;
        layOut(m, 4.125f, 9.5f);
        QTEST(m.item(ItemId(item)).Text, "after");
    }

    void otherFieldsAreReset()
    {
        PieceModel m;
        for (Item &it : m.items) {
            it = Item{5,         5,       0,        0,
                      0,         0,       true,     false,
                      QString(), haRight, vaBottom, ItemFont{QStringLiteral("Times"), 14, true}};
        }
        layOut(m, 4.125f, 9.5f);
        for (ItemId id : StorageOrder) {
            const Item &it = m.item(id);
            const bool centred = id == ItemId::Return || id == ItemId::Stamp;
            QCOMPARE(it.Border, qint16(id == ItemId::Stamp ? 1 : 0));
            QCOMPARE(it.HorzAlign, centred ? haCenter : haLeft);
            QCOMPARE(it.VertAlign, vaTop);
            QCOMPARE(it.LineSpacing, qint16(80));
            QVERIFY(it.Wrap);
            // Only the typeface is the layout's: size and style stay.
            QCOMPARE(it.Font, (ItemFont{QStringLiteral("Arial"), 14, true}));
        }
    }

private:
    // A file of the test's folder: the name given, or one of its own.
    QString write(const QByteArray &content, QString name = {})
    {
        if (name.isEmpty())
            name = QStringLiteral("f%1.cfg").arg(++m_files);
        QFile f(m_dir.filePath(name));
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(content) < 0)
            qFatal("cannot write %s", qPrintable(f.fileName()));
        return f.fileName();
    }
    QString read(const QString &path) const
    {
        return ProfileFile::readString(path, QStringLiteral("A"), QStringLiteral("k"),
                                       QStringLiteral("<none>"));
    }
    QTemporaryDir m_dir;
    int m_files = 0;
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
