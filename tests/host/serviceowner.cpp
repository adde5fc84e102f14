#include "serviceprocess.h"

#include <QCoreApplication>

#include <cstdio>

/// Starts the service that the arguments name, prints its process identifier when it is ready, and waits.
int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    ServiceProcess service;
    QObject::connect(&service, &ServiceProcess::ready, &application, [&service] {
        std::printf("%lld\n", static_cast<long long>(service.processId()));
        std::fflush(stdout);
    });
    QObject::connect(&service, &ServiceProcess::failed, &application, [](const QString &reason) {
        std::fprintf(stderr, "%s\n", qPrintable(reason));
        QCoreApplication::exit(1);
    });
    service.start({arguments.value(1), arguments.value(2), arguments.value(3)});
    return application.exec();
}
