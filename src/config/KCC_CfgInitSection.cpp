// SPDX-License-Identifier: MIT
#include "ncappkit/config/KCC_CfgInitSection.h"

KCC_CfgInitSection& KCC_CfgInitSection::operator=(const KCC_CfgInitSection& other) {
  if (this != &other) {
    if (m_owns && m_cfg != other.m_cfg)
      delete m_cfg;
    m_cfg = other.m_cfg;
    m_owns = false;
  }
  return *this;
}

KCC_CfgInitSection::~KCC_CfgInitSection() {
  if (m_owns && m_cfg != nullptr)
    delete m_cfg;
}
