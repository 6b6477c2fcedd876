import QtQuick 2.15

Item {
    property QtObject controller
    property int doubled: 2 * x

    width: 40
    height: 30
}
