#include <QApplication>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>

namespace {

/// The console's table, and behind it the ratios that have a budget, in processor time.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    RatioReporter() : ConsoleReporter(OO_None) {}
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs)
            if (!run.error_occurred && run.run_type == Run::RT_Iteration)
                shortest(run.run_name.function_name) =
                    std::min(shortest(run.run_name.function_name),
                             run.cpu_accumulated_time / double(run.iterations));
    }
    void Finalize() override
    {
        ConsoleReporter::Finalize();
        print("decoding / libyuv's approximate conversion (budget 1)", "decodeOurs",
              "decodeLibyuv");
        print("decoding / formula as written", "decodeOurs", "decodeAsWritten");
        print("frame on the page / floor (budget 1.15)", "frameOnThePage", "frameFloor");
    }

private:
    double& shortest(const std::string& name) { return m_seconds.emplace(name, 1e9).first->second; }
    void print(const char* title, const char* ours, const char* other)
    {
        if (m_seconds.count(ours) > 0 && m_seconds.count(other) > 0)
            std::printf("%-56s %.3f\n", title, shortest(ours) / shortest(other));
    }
    std::map<std::string, double> m_seconds;
};

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
