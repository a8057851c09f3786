// Start-up's second threads: the work done once joined, on one processor or several, and its failure handed back.
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
    // Confined to some of the processors the test may use: the work is done when joined, may be moved to any of
    // them once it runs, and what it threw is thrown at the join.
    void runs() {
        QFETCH(int, processors);
        cpu_set_t allowed, confined, own;
        QCOMPARE(sched_getaffinity(0, sizeof allowed, &allowed), 0);
        CPU_ZERO(&confined);
        for (int cpu = 0, n = 0; cpu < CPU_SETSIZE && n < processors; ++cpu)
            if (CPU_ISSET(cpu, &allowed)) CPU_SET(cpu, &confined), ++n;
        QCOMPARE(sched_setaffinity(0, sizeof confined, &confined), 0);
        SideThread worker([&] { sched_getaffinity(0, sizeof own, &own); throw std::runtime_error("done"); });
        QString thrown;
        try {
            worker.join();
        } catch (const std::runtime_error& e) {
            thrown = e.what();
        }
        sched_setaffinity(0, sizeof allowed, &allowed);
        QCOMPARE(thrown, QString("done"));
        QVERIFY(CPU_EQUAL(&own, &confined));
    }
};

QTEST_GUILESS_MAIN(SideThreadTest)
#include "test_side_thread.moc"
