#include <UiElements/models/EmptyStateBaseListModel.h>
