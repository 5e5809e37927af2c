// SPDX-FileCopyrightText: 2026 QuirraControl developers
// SPDX-License-Identifier: MIT
#include "printing/cupsjob.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QStringList>
#include <QThread>

#include <cups/cups.h>

#include <memory>
#include <vector>

namespace quirra::cupsjob {

namespace {

struct IppFree
{
    void operator()(ipp_t *ipp) const { ippDelete(ipp); }
};
using Ipp = std::unique_ptr<ipp_t, IppFree>;

QString text(const char *value)
{
    return value ? QString::fromUtf8(value) : QString();
}

// Every value of a text attribute, joined; reasons other than "none".
QString values(ipp_t *response, const char *name)
{
    ipp_attribute_t *attribute = ippFindAttribute(response, name, IPP_TAG_ZERO);
    QStringList parts;
    for (int i = 0; attribute && i < ippGetCount(attribute); ++i) {
        const QString value = text(ippGetString(attribute, i, nullptr));
        if (!value.isEmpty() && value != QLatin1String("none"))
            parts << value;
    }
    return parts.join(QStringLiteral(", "));
}

Ipp ask(ipp_op_t operation, const char *uriName, const QByteArray &uri,
        std::initializer_list<const char *> wanted)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri.constData());
    std::vector<const char *> names(wanted);
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  int(names.size()), nullptr, names.data());
    Ipp response(cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/"));
    if (response && ippGetStatusCode(response.get()) > IPP_STATUS_OK_EVENTS_COMPLETE)
        response.reset();
    return response;
}

QByteArray queueUri(const QString &name)
{
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/printers/%s", name.toUtf8().constData());
    return QByteArray(uri);
}

// The reason a queue gives, or a description of its state when it gives none.
QString reasonOf(ipp_t *response, const QString &fallback)
{
    const QString message = values(response, "printer-state-message");
    const QString reasons = values(response, "printer-state-reasons");
    if (!message.isEmpty())
        return reasons.isEmpty() ? message
                                 : message + QStringLiteral(" (") + reasons + QLatin1Char(')');
    return reasons.isEmpty() ? fallback : reasons;
}

} // namespace

QString queueProblem(const QString &queue)
{
    const QString name = queue.section(QLatin1Char('/'), 0, 0);
    Ipp response = ask(IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri", queueUri(name),
                       {"printer-is-accepting-jobs", "printer-state", "printer-state-message",
                        "printer-state-reasons"});
    if (!response)
        return QString();
    ipp_attribute_t *accepting =
        ippFindAttribute(response.get(), "printer-is-accepting-jobs", IPP_TAG_BOOLEAN);
    if (accepting && !ippGetBoolean(accepting, 0)) {
        return QStringLiteral("the printer queue \"%1\" is not accepting jobs: %2")
            .arg(name, reasonOf(response.get(), QStringLiteral("no reason given")));
    }
    ipp_attribute_t *state = ippFindAttribute(response.get(), "printer-state", IPP_TAG_ENUM);
    if (state && ippGetInteger(state, 0) == IPP_PSTATE_STOPPED) {
        return QStringLiteral("the printer queue \"%1\" is stopped: %2")
            .arg(name, reasonOf(response.get(), QStringLiteral("no reason given")));
    }
    return QString();
}

QString printFile(const QString &queue, const QString &file, const QString &title,
                  const QList<Option> &options, int waitMs)
{
    const QString name = queue.section(QLatin1Char('/'), 0, 0);
    cups_option_t *cupsOptions = nullptr;
    int count = 0;
    for (const Option &option : options)
        count =
            cupsAddOption(option.first.constData(), option.second.constData(), count, &cupsOptions);
    const int job = cupsPrintFile(name.toUtf8().constData(), QFile::encodeName(file).constData(),
                                  title.toUtf8().constData(), count, cupsOptions);
    cupsFreeOptions(count, cupsOptions);
    if (job <= 0) {
        return QStringLiteral("the printer queue \"%1\" refused the job: %2")
            .arg(name, text(cupsLastErrorString()));
    }

    // A job the queue cannot print (a filter or the device failing) is
    // aborted or stopped within moments; one still on its way after that is
    // printing.
    char uri[HTTP_MAX_URI];
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri, sizeof uri, "ipp", nullptr, "localhost", 0,
                     "/jobs/%d", job);
    const QDeadlineTimer deadline(waitMs);
    while (true) {
        Ipp response = ask(IPP_OP_GET_JOB_ATTRIBUTES, "job-uri", QByteArray(uri),
                           {"job-state", "job-state-reasons", "job-printer-state-message"});
        if (!response)
            return QString();
        ipp_attribute_t *state = ippFindAttribute(response.get(), "job-state", IPP_TAG_ENUM);
        const int value = state ? ippGetInteger(state, 0) : IPP_JSTATE_COMPLETED;
        if (value == IPP_JSTATE_ABORTED || value == IPP_JSTATE_CANCELED ||
            value == IPP_JSTATE_STOPPED) {
            // The job's own message, else the queue's, and the job's reasons.
            QString why = values(response.get(), "job-printer-state-message");
            if (why.isEmpty()) {
                Ipp printer = ask(IPP_OP_GET_PRINTER_ATTRIBUTES, "printer-uri", queueUri(name),
                                  {"printer-state-message", "printer-state-reasons"});
                why = printer ? values(printer.get(), "printer-state-message") : QString();
            }
            const QString reasons = values(response.get(), "job-state-reasons");
            if (why.isEmpty())
                why = reasons;
            else if (!reasons.isEmpty())
                why += QStringLiteral(" (") + reasons + QLatin1Char(')');
            const QString what = value == IPP_JSTATE_ABORTED   ? QStringLiteral("aborted")
                                 : value == IPP_JSTATE_STOPPED ? QStringLiteral("stopped")
                                                               : QStringLiteral("cancelled");
            return QStringLiteral("the printer queue \"%1\" %2 job %3: %4")
                .arg(name, what)
                .arg(job)
                .arg(why.isEmpty() ? QStringLiteral("no reason given") : why);
        }
        if (value == IPP_JSTATE_COMPLETED || deadline.hasExpired())
            return QString();
        QThread::msleep(100);
    }
}

} // namespace quirra::cupsjob
