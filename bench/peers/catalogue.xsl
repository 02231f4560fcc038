<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: MIT -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:output method="text" encoding="UTF-8"/>
  <xsl:key name="group" match="Группа" use="Ид"/>

  <xsl:template match="/">
    <xsl:text>Ryk data for exchange&#10;</xsl:text>
    <xsl:for-each select="КоммерческаяИнформация/Каталог/Товары/Товар">
      <xsl:text>##goods&#10;code:</xsl:text>
      <xsl:value-of select="Ид"/>
      <xsl:text>&#10;article:</xsl:text>
      <xsl:value-of select="Артикул"/>
      <xsl:text>&#10;name:</xsl:text>
      <xsl:value-of select="Наименование"/>
      <xsl:text>&#10;barcode:</xsl:text>
      <xsl:value-of select="Штрихкод"/>
      <xsl:if test="Группы/Ид">
        <xsl:text>&#10;group:</xsl:text>
        <xsl:for-each select="key('group', Группы/Ид)/ancestor-or-self::Группа">
          <xsl:if test="position() &gt; 1"> \ </xsl:if>
          <xsl:value-of select="Наименование"/>
        </xsl:for-each>
      </xsl:if>
      <xsl:text>&#10;unit:</xsl:text>
      <xsl:value-of select="БазоваяЕдиница"/>
      <xsl:text>&#10;--- begin ---&#10;</xsl:text>
      <xsl:value-of select="Описание"/>
      <xsl:text>&#10;--- end ---&#10;##endgoods&#10;</xsl:text>
    </xsl:for-each>
  </xsl:template>
</xsl:stylesheet>
