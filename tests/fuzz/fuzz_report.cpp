// A recorded file of any content, judged and reported as a page.
#include "fuzz/fuzztarget.h"
#include "report/htmlreport.h"
#include "report/judgerecord.h"

#include <sys/mman.h>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using FuzzTarget::expect;
    const int fd = ::memfd_create("record", MFD_CLOEXEC);
    expect(fd >= 0 && ::write(fd, data, size) == ssize_t(size), "a file in memory");
    RecordSource source;
    source.open(QStringLiteral("/proc/self/fd/%1").arg(fd));
    if (source.state() != RecordState::Unreadable) {
        MonitorLimits2 limits;
        limits.initEN50160();
        const auto judgement = judgeRecord(source, limits);
        expect(judgement != nullptr, "what can be read is judged");
        expect(judgement->overview.start <= judgement->overview.end, "time goes on");
        for (const QuantityVerdict &verdict : judgement->verdicts) {
            expect(verdict.judged >= verdict.flagged, "flagged values are among the judged");
            expect(verdict.judged == 0 || verdict.lowest <= verdict.highest, "extremes are in order");
            expect(!(verdict.shareWithin < 0) && !(verdict.shareWithin > 100), "a share is one");
        }
        const ReportSource about = reportSourceOf(source);
        const Report text((QString()));
        const QByteArray html = htmlReport(ReportWriter(*judgement, about, text).content());
        constexpr int kLargest = 8 << 20; // bytes: whatever a file holds, a report stays one that can be opened
        expect(html.endsWith("</html>\n") && html.size() < kLargest && !html.contains("<script"), "a page is one");
    }
    ::close(fd);
    return 0;
}
