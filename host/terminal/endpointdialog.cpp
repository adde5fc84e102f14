#include "endpointdialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {
constexpr int FieldWidth = 320;

QLineEdit *makeField(const QString &name, const QString &text)
{
    auto *field = new QLineEdit(text);
    field->setObjectName(name);
    field->setMinimumWidth(FieldWidth);
    return field;
}
} // namespace

EndpointDialog::EndpointDialog(const Endpoint &endpoint, QWidget *parent)
    : QDialog(parent)
    , m_local(new QRadioButton(tr("Demonstration data on this computer")))
    , m_remote(new QRadioButton(tr("Data service at")))
    , m_service(makeField("ServiceAddress", endpoint.service.toString()))
    , m_user(makeField("User", endpoint.user))
    , m_product(makeField("Product", endpoint.product))
    , m_token(makeField("Token", endpoint.token))
    , m_fault(new QLabel)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setObjectName("EndpointDialog");
    setWindowTitle(tr("Data service"));
    m_local->setObjectName("LocalService");
    m_remote->setObjectName("RemoteService");
    m_fault->setObjectName("EndpointFault");
    m_service->setPlaceholderText("https://data.example.com:8443");
    m_token->setEchoMode(QLineEdit::PasswordEchoOnEdit);
    m_buttons->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    m_buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    (endpoint.isLocal() ? m_local : m_remote)->setChecked(true);

    auto *form = new QFormLayout(this);
    form->setContentsMargins(16, 16, 16, 12);
    form->setSpacing(8);
    form->addRow(m_local);
    form->addRow(m_remote, m_service);
    form->addRow(tr("User"), m_user);
    form->addRow(tr("Product"), m_product);
    form->addRow(tr("Access token"), m_token);
    form->addRow(m_fault);
    form->addRow(m_buttons);
    connect(m_local, &QRadioButton::toggled, this, &EndpointDialog::check);
    connect(m_service, &QLineEdit::textChanged, this, &EndpointDialog::check);
    connect(m_remote, &QRadioButton::clicked, m_service, [this] { m_service->setFocus(); });
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
}

Endpoint EndpointDialog::endpoint() const
{
    Endpoint endpoint;
    if (m_remote->isChecked())
        endpoint.service = QUrl(m_service->text().trimmed(), QUrl::StrictMode);
    endpoint.user = m_user->text().trimmed();
    endpoint.product = m_product->text().trimmed();
    endpoint.token = m_token->text().trimmed();
    return endpoint;
}

void EndpointDialog::check()
{
    const bool remote = m_remote->isChecked();
    m_service->setEnabled(remote);
    const QUrl url(m_service->text().trimmed(), QUrl::StrictMode);
    const bool http = url.scheme() == "http" || url.scheme() == "https";
    const bool good = !remote || (url.isValid() && http && !url.host().isEmpty());
    m_fault->setText(good ? QString() : tr("An address looks like http://server:8080"));
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(good);
}
