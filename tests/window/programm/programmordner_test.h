#pragma once

#include <QObject>

namespace varnok {

class Programmordnertest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_folder_with_a_project_is_taken_as_it_is();
    void elsewhere_the_installed_data_are_copied_for_the_user();
    void the_copy_is_made_once();
};

}  // namespace varnok
