#include <release/pattern/SampleAcceptance.h>

#include <QTest>

#include <cmath>
#include <random>
#include <set>

using namespace VelkRelease;
using Place = DifferencePatterns::Place;
using State = SampleAcceptance::State;

namespace {

std::vector<Place> placesOf(int count)
{
    std::vector<Place> places;
    for (int i = 0; i < count; ++i)
        places.push_back({i / 100, i % 100});
    return places;
}

} // namespace

class tst_SampleAcceptance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bound_data();
    void bound();
    void drawsByChanceAndAgain();
    void allRight();
    void firstWrongOneEnds();
    void allLinesJudged();
    void decidedElsewhere();
    void boundHolds_data();
    void boundHolds();
};

void tst_SampleAcceptance::bound_data()
{
    QTest::addColumn<int>("judged");
    QTest::addColumn<int>("wrong");
    QTest::addColumn<double>("expected");
    // 1 - 0.05^(1/n), and tabulated ones.
    QTest::newRow("59 of 59") << 59 << 0 << 1 - std::pow(0.05, 1.0 / 59);
    QTest::newRow("10 of 10") << 10 << 0 << 0.2588656;
    QTest::newRow("1 wrong of 20") << 20 << 1 << 0.2161066;
    QTest::newRow("nothing judged") << 0 << 0 << 1.0;
    QTest::newRow("all wrong") << 3 << 3 << 1.0;
}

void tst_SampleAcceptance::bound()
{
    QFETCH(int, judged);
    QFETCH(int, wrong);
    QFETCH(double, expected);
    QVERIFY(std::abs(wrongShareBound(judged, wrong) - expected) < 1e-6);
    QCOMPARE(linesForBound(0.05), 59);
    QCOMPARE(linesForBound(0.01), 299);
    QVERIFY(wrongShareBound(58, 0) > 0.05 && wrongShareBound(59, 0) < 0.05);
}

void tst_SampleAcceptance::drawsByChanceAndAgain()
{
    const std::vector<Place> all = placesOf(500);
    const SampleAcceptance sample(all, 59, 7);
    QCOMPARE(sample.drawn().size(), 59U);
    QCOMPARE(SampleAcceptance(all, 59, 7).drawn(), sample.drawn());
    QVERIFY(SampleAcceptance(all, 59, 8).drawn() != sample.drawn());
    QVERIFY(std::is_sorted(sample.drawn().begin(), sample.drawn().end()));
    QCOMPARE(std::set<Place>(sample.drawn().begin(), sample.drawn().end()).size(), 59U);
    // Each line is drawn about as often.
    std::vector<int> hits(500);
    for (quint64 seed = 0; seed < 2000; ++seed) {
        const SampleAcceptance drawn(all, 50, seed);
        for (const Place &place : drawn.drawn())
            ++hits[size_t(place.project * 100 + place.line)];
    }
    const auto [least, most] = std::minmax_element(hits.begin(), hits.end());
    QVERIFY2(*least > 130 && *most < 275, qPrintable(QString("%1 %2").arg(*least).arg(*most)));
}

void tst_SampleAcceptance::allRight()
{
    SampleAcceptance sample(placesOf(1000), 59, 1);
    for (int i = 0; i < 59; ++i) {
        QCOMPARE(sample.state(), State::Running);
        QCOMPARE(sample.current(), sample.drawn()[size_t(i)]);
        QVERIFY(!sample.bound());
        sample.judge(true);
    }
    QCOMPARE(sample.state(), State::Accepted);
    QCOMPARE(sample.current(), Place());
    QCOMPARE(sample.right(), 59);
    QVERIFY(*sample.bound() < 0.05);
    sample.judge(false); // over
    QCOMPARE(sample.state(), State::Accepted);
}

void tst_SampleAcceptance::firstWrongOneEnds()
{
    SampleAcceptance sample(placesOf(1000), 59, 1);
    sample.judge(true);
    sample.judge(false);
    QCOMPARE(sample.state(), State::Refused);
    QCOMPARE(sample.judged(), 2);
    QCOMPARE(sample.right(), 1);
    QVERIFY(!sample.bound());
}

void tst_SampleAcceptance::allLinesJudged()
{
    SampleAcceptance sample(placesOf(3), 59, 1);
    QCOMPARE(sample.drawn().size(), 3U);
    for (int i = 0; i < 3; ++i)
        sample.judge(true);
    QCOMPARE(sample.bound(), std::optional(0.0));
    const SampleAcceptance none({}, 59, 1);
    QCOMPARE(none.state(), State::Accepted);
    QVERIFY(!none.bound());
}

void tst_SampleAcceptance::decidedElsewhere()
{
    SampleAcceptance sample(placesOf(10), 9, 1);
    const Place first = sample.current();
    sample.replace();
    QCOMPARE(sample.drawn().size(), 9U);
    QVERIFY(sample.current() != first);
    QCOMPARE(sample.lines().size(), 9U);
    sample.replace();
    QCOMPARE(sample.drawn().size(), 8U);
    for (int i = 0; i < 8; ++i)
        sample.judge(true);
    QCOMPARE(sample.bound(), std::optional(0.0));
}

void tst_SampleAcceptance::boundHolds_data()
{
    QTest::addColumn<double>("share");
    // Just above the bound of 59 lines an accepted set is most often stated wrongly.
    for (const double share : {0.01, 0.0496, 0.06, 0.2})
        QTest::addRow("%.2f %% wrong", share * 100) << share;
}

void tst_SampleAcceptance::boundHolds()
{
    QFETCH(double, share);
    constexpr int Simulations = 1000;
    const std::vector<Place> all = placesOf(600);
    const auto wrongOnes = int(std::ceil(share * double(all.size())));
    std::mt19937_64 random(42);
    int holds = 0;
    for (int i = 0; i < Simulations; ++i) {
        std::vector<Place> shuffled = all;
        std::shuffle(shuffled.begin(), shuffled.end(), random);
        const std::set<Place> wrong(shuffled.begin(), shuffled.begin() + wrongOnes);
        SampleAcceptance sample(all, 59, random());
        while (sample.state() == State::Running)
            sample.judge(!wrong.contains(sample.current()));
        const std::optional<double> bound = sample.bound();
        holds += !bound || *bound >= double(wrongOnes) / double(all.size()) ? 1 : 0;
    }
    QVERIFY2(holds >= Simulations * 95 / 100, qPrintable(QString::number(holds)));
}

QTEST_GUILESS_MAIN(tst_SampleAcceptance)
#include "tst_SampleAcceptance.moc"
