#pragma once

#include "endpoint.h"

#include <QDialog>

class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QRadioButton;

/// Asks for the data service and the identity. Object names: "EndpointDialog", "LocalService",
/// "RemoteService", "ServiceAddress", "User", "Product", "Token", "EndpointFault".
class EndpointDialog : public QDialog
{
    Q_OBJECT

public:
    explicit EndpointDialog(const Endpoint &endpoint, QWidget *parent = nullptr);

    Endpoint endpoint() const;

private:
    void check();

    QRadioButton *m_local;
    QRadioButton *m_remote;
    QLineEdit *m_service;
    QLineEdit *m_user;
    QLineEdit *m_product;
    QLineEdit *m_token;
    QLabel *m_fault;
    QDialogButtonBox *m_buttons;
};
