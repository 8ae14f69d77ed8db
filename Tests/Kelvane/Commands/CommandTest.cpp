#include "Kelvane/Commands/Command.h"

#include <QTest>

using namespace DockCore;
using namespace Kelvane;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(Kelvane::Command)

class CommandTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void understands_data();
    void understands();
    void refusesInOneLineThatSaysWhatWasExpected_data();
    void refusesInOneLineThatSaysWhatWasExpected();
    void onlyGoingBackWithoutATargetIsNotRepeatable();
    void helpNamesEveryCommand();
};

void CommandTest::understands_data() {
    using enum Command::Verb;
    QTest::addColumn<QString>("line");
    QTest::addColumn<Command>("expected");
    QTest::newRow("status") << u"status"_s << Command{.verb = status};
    QTest::newRow("an option before the command") << u"--json status"_s << Command{.verb = status, .json = true};
    QTest::newRow("an option after the command") << u"status --json"_s << Command{.verb = status, .json = true};
    QTest::newRow("plan of the active profile") << u"plan"_s << Command{.verb = plan};
    QTest::newRow("plan of a profile") << u"plan Work"_s << Command{.verb = plan, .profile = u"Work"_s};
    QTest::newRow("a profile in another script") << u"apply 仕事"_s << Command{.verb = apply, .profile = u"仕事"_s};
    QTest::newRow("a name that looks like an option")
        << u"apply -- --json"_s << Command{.verb = apply, .profile = u"--json"_s};
    QTest::newRow("restore the previous") << u"restore"_s << Command{.verb = restore};
    QTest::newRow("restore the original") << u"restore --original"_s << Command{.verb = restore, .original = true};
    QTest::newRow("restore one") << u"restore --snapshot 17-AB"_s << Command{.verb = restore, .snapshot = u"17-AB"_s};
    QTest::newRow("restore one, with a sign")
        << u"restore --snapshot=17-AB"_s << Command{.verb = restore, .snapshot = u"17-AB"_s};
    QTest::newRow("rank of the profile's window") << u"rank"_s << Command{.verb = rank};
    QTest::newRow("rank of the week") << u"rank --window week"_s << Command{.verb = rank, .window = UsageWindow::week};
    QTest::newRow("rank of the month") << u"rank --window month"_s
                                       << Command{.verb = rank, .window = UsageWindow::month};
    QTest::newRow("track on") << u"track on"_s << Command{.verb = track, .trackingOn = true};
    QTest::newRow("track off") << u"track off"_s << Command{.verb = track};
    QTest::newRow("auto off") << u"auto off"_s << Command{.verb = automatic};
    QTest::newRow("auto every4Hours") << u"auto every4Hours"_s
                                      << Command{.verb = automatic, .interval = AutoUpdate::every4Hours};
    QTest::newRow("resume") << u"resume --json"_s << Command{.verb = resume, .json = true};
}

void CommandTest::understands() {
    QFETCH(QString, line);
    QFETCH(Command, expected);
    const auto parsed = parseCommand(line.split(u' '));
    if (const auto* mistake = std::get_if<CommandMistake>(&parsed))
        QFAIL(qPrintable(mistake->sentence));
    QCOMPARE(std::get<Command>(parsed), expected);
}

void CommandTest::refusesInOneLineThatSaysWhatWasExpected_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("names");
    QTest::newRow("nothing at all") << QStringList{} << u"expected one of status"_s;
    QTest::newRow("an empty word") << QStringList{QString()} << u"expected one of status"_s;
    QTest::newRow("an unknown command") << QStringList{u"sing"_s} << u"expected one of status, plan"_s;
    QTest::newRow("a command in capitals") << QStringList{u"STATUS"_s} << u"expected one of status"_s;
    QTest::newRow("an unknown option") << QStringList{u"status"_s, u"--sing"_s} << u"expected --json"_s;
    QTest::newRow("an unknown short option") << QStringList{u"status"_s, u"-j"_s} << u"expected --json"_s;
    QTest::newRow("a word too many") << QStringList{u"status"_s, u"now"_s} << u"expected nothing"_s;
    QTest::newRow("a profile of two words without quotes")
        << QStringList{u"apply"_s, u"My"_s, u"Work"_s} << u"expected one profile"_s;
    QTest::newRow("track without a word") << QStringList{u"track"_s} << u"expects on or off"_s;
    QTest::newRow("track yes") << QStringList{u"track"_s, u"yes"_s} << u"expects on or off"_s;
    QTest::newRow("auto without a word") << QStringList{u"auto"_s} << u"expects off, hourly"_s;
    QTest::newRow("auto weekly") << QStringList{u"auto"_s, u"weekly"_s} << u"expects off, hourly"_s;
    QTest::newRow("snapshot without an id")
        << QStringList{u"restore"_s, u"--snapshot"_s} << u"--snapshot expects an id"_s;
    QTest::newRow("snapshot elsewhere") << QStringList{u"apply"_s, u"--snapshot"_s, u"1"_s}
                                        << u"“--snapshot” does not fit after “apply”; expected one profile"_s;
    QTest::newRow("window without a value")
        << QStringList{u"rank"_s, u"--window"_s} << u"--window expects week or month"_s;
    QTest::newRow("window with one dash and no value")
        << QStringList{u"rank"_s, u"-window"_s} << u"--window expects week or month"_s;
    QTest::newRow("an unknown command of two lines")
        << QStringList{u"sing\nsong"_s} << u"There is no command “sing song”; expected one of"_s;
    QTest::newRow("an unknown option with control characters")
        << QStringList{u"status"_s, u"--\x1b[31m\r\nred"_s} << u"“ [31m red”; expected --json"_s;
    QTest::newRow("a word too many, with a line separator")
        << QStringList{u"status"_s, u"a\u2028b"_s} << u"“a b” does not fit after “status”; expected nothing"_s;
    QTest::newRow("original and snapshot")
        << QStringList{u"restore"_s, u"--original"_s, u"--snapshot"_s, u"1"_s} << u"not both"_s;
    QTest::newRow("original elsewhere") << QStringList{u"status"_s, u"--original"_s}
                                        << u"“--original” does not fit after “status”; expected nothing"_s;
    QTest::newRow("window elsewhere") << QStringList{u"status"_s, u"--window"_s, u"week"_s}
                                      << u"“--window” does not fit after “status”; expected nothing"_s;
    QTest::newRow("a window that is none")
        << QStringList{u"rank"_s, u"--window"_s, u"year"_s} << u"expects week or month"_s;
    QTest::newRow("a value for a switch")
        << QStringList{u"status"_s, u"--json=yes"_s} << u"--json and --original take no value; expected"_s;
    QTest::newRow("a value for a switch after the command's own")
        << QStringList{u"restore"_s, u"--original=1"_s} << u"--json and --original take no value; expected"_s;
}

void CommandTest::refusesInOneLineThatSaysWhatWasExpected() {
    QFETCH(QStringList, words);
    QFETCH(QString, names);
    const auto parsed = parseCommand(words);
    const auto* mistake = std::get_if<CommandMistake>(&parsed);
    QVERIFY(mistake != nullptr);
    QVERIFY2(mistake->sentence.contains(names), qPrintable(mistake->sentence));
    QVERIFY2(mistake->sentence.contains(u"expect"), qPrintable(mistake->sentence));
    for (const QChar character : mistake->sentence)
        QVERIFY(character.isPrint());
}

void CommandTest::onlyGoingBackWithoutATargetIsNotRepeatable() {
    using enum Command::Verb;
    QVERIFY(!isRepeatable({.verb = restore}));
    QVERIFY(isRepeatable({.verb = restore, .original = true}));
    QVERIFY(isRepeatable({.verb = restore, .snapshot = u"1"_s}));
    QVERIFY(isRepeatable({.verb = apply}));
}

void CommandTest::helpNamesEveryCommand() {
    for (const QString& name :
         {u"status"_s, u"plan"_s, u"apply"_s, u"restore"_s, u"rank"_s, u"profiles"_s, u"snapshots"_s, u"apps"_s,
          u"track"_s, u"auto"_s, u"resume"_s, u"--json"_s, u"--version"_s})
        QVERIFY2(commandHelp().contains(name), qPrintable(name));
}

QTEST_APPLESS_MAIN(CommandTest)
#include "CommandTest.moc"
