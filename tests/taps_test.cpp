// SPDX-License-Identifier: MIT
#include "tests/main_frame_errand.h"
#include "tests/test_program.h"

namespace {

struct Job
{
    const char* name;
    qsizetype mostTaps;
    /// Each on the screen that the one before leaves; a hold counts as a tap, typing does not.
    QString steps;
    /// What shows that it is done, and the way to where the next begins.
    QString seen;
};

const std::array kJobs {
    Job { "open a list", 1, u"tap Pantry"_s, u"at Pantry; see Rice, Salt, Tea"_s },
    Job { "count a row up", 2, u"hold Tea; tap Add 1"_s, u"see Quantity: 1, 2, 4"_s },
    Job { "add a row with its amount", 2, u"tap New; type Flour; press Return; type 5; tap ok"_s,
        u"see Quantity: 1, 2, 4, 5"_s },
    Job { "change a price", 3,
        u"hold Salt; tap Modify...; press Return Return Return Return; type 2.5; tap ok"_s,
        u"see Price: 0.00, 2.50, 0.00, 0.00"_s },
    Job { "tick a row", 1, u"tap Bio of Salt"_s, u"see Bio: , ticked, , "_s },
    Job { "sort by expiry", 1, u"tap Expiry Date"_s, u"see Quantity: 5, 4, 1, 2"_s },
    Job { "find a row by its name", 3, u"tap Menu; tap Find...; type al; tap ok"_s,
        u"see Salt; tap ok"_s },
    Job { "delete a row", 3, u"hold Tea; tap Delete; tap Yes"_s, u"see Flour, Rice, Salt"_s },
    Job { "undo that", 1, u"tap undo"_s, u"see Flour, Tea, Rice, Salt"_s },
    Job { "see totals", 2, u"tap Menu; tap View Summary..."_s,
        u"at Quillory; see Quantity|12, Price|2.50, Size|0"_s },
};

} // namespace

class TapsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commonJobsTakeFewTaps()
    {
        FrameErrand errand;
        errand.MakeLists({});
        {
            ListFixture file(u"Pantry"_s);
            for (const auto& [name, count, expiry] :
                { std::array { u"Rice"_s, u"1"_s, u"5/1/2027"_s },
                    { u"Salt"_s, u"2"_s, u"6/1/2027"_s }, { u"Tea"_s, u"3"_s, u"4/1/2027"_s } })
                file.Add({ name, count, {}, u"Unchecked"_s, {}, {}, {}, expiry });
            file.rows.reset();
            file.catalogue.reset();
            file.data.reset();
            errand.ReplaceDataFile(file.Path());
        }
        errand.Start();
        Act(u"size 880x480"_s);
        for (const Job& job : kJobs) {
            const qsizetype taps = job.steps.count(u"tap "_s) + job.steps.count(u"hold "_s);
            Act(job.steps + u"; "_s + job.seen);
            qInfo("%-26s %lld of %lld taps", job.name, taps, job.mostTaps);
            QVERIFY2(!QTest::currentTestFailed() && taps <= job.mostTaps, job.name);
        }
    }
};

QUILLORY_TEST(QApplication, TapsTest)
#include "taps_test.moc"
