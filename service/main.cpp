#include "serviceapplication.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("subject-service"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SUBJECTPAGE_VERSION));
    return service::runService(QCoreApplication::arguments());
}
