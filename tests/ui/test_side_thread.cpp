// Start-up's second threads: the work done once joined, a failure handed back, on one processor or several.
#include <QtTest>
#include <stdexcept>

#include "SideThread.h"

class SideThreadTest : public QObject {
    Q_OBJECT

private slots:
    void runs_data() {
        QTest::addColumn<int>("processors");
        QTest::newRow("one processor") << 1;
        QTest::newRow("all") << CPU_SETSIZE;
    }
    // Confined to some of the processors the test may use: the work is done when joined, and once it runs it may
    // be moved to any of them.
    void runs() {
        QFETCH(int, processors);
        cpu_set_t allowed, confined, workersOwn;
        QCOMPARE(sched_getaffinity(0, sizeof allowed, &allowed), 0);
        CPU_ZERO(&confined);
        for (int cpu = 0, n = 0; cpu < CPU_SETSIZE && n < processors; ++cpu)
            if (CPU_ISSET(cpu, &allowed)) CPU_SET(cpu, &confined), ++n;
        QCOMPARE(sched_setaffinity(0, sizeof confined, &confined), 0);
        bool done = false;
        SideThread([&] { sched_getaffinity(0, sizeof workersOwn, &workersOwn), done = true; }).join();
        sched_setaffinity(0, sizeof allowed, &allowed);
        QVERIFY(done);
        QVERIFY(CPU_EQUAL(&workersOwn, &confined));
    }
    void failureComesBackAtJoin() {
        SideThread failing([] { throw std::runtime_error("unreadable"); });
        QString caught;
        try {
            failing.join();
        } catch (const std::runtime_error& e) {
            caught = e.what();
        }
        QCOMPARE(caught, QString("unreadable"));
    }
};

QTEST_GUILESS_MAIN(SideThreadTest)
#include "test_side_thread.moc"
