#pragma once

#include <QDialog>

/// Tells what the icons of the tree and of the tables mean.
class LegendDialog : public QDialog
{
    Q_OBJECT

public:
    explicit LegendDialog(QWidget *parent);
    ~LegendDialog() override;
};
