// SPDX-License-Identifier: Apache-2.0
#include "EmptyStateBaseListModel.h"

EmptyStateBaseListModel::EmptyStateBaseListModel(QObject *parent) : BaseListModel(parent) { }

EmptyStateBaseListModel::~EmptyStateBaseListModel() = default;
