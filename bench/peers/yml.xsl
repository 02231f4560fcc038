<?xml version="1.0" encoding="UTF-8"?>
<!-- SPDX-License-Identifier: MIT -->
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform">
  <xsl:output method="text" encoding="UTF-8"/>
  <xsl:key name="category" match="category" use="@id"/>

  <xsl:template match="/">
    <xsl:text>Ryk data for exchange&#10;</xsl:text>
    <xsl:for-each select="yml_catalog/shop/offers/offer">
      <xsl:text>##goods&#10;code:</xsl:text>
      <xsl:value-of select="@id"/>
      <xsl:text>&#10;article:</xsl:text>
      <xsl:value-of select="vendorCode"/>
      <xsl:text>&#10;name:</xsl:text>
      <xsl:call-template name="shown-name">
        <xsl:with-param name="part" select="substring-before(substring(name, 2), ']')"/>
        <xsl:with-param name="rest" select="substring-after(name, ']')"/>
      </xsl:call-template>
      <xsl:text>&#10;barcode:</xsl:text>
      <xsl:value-of select="barcode"/>
      <xsl:if test="categoryId">
        <xsl:text>&#10;group:</xsl:text>
        <xsl:apply-templates select="key('category', categoryId)"/>
      </xsl:if>
      <xsl:text>&#10;price:</xsl:text>
      <xsl:value-of select="price"/>
      <xsl:text>&#10;vendor:</xsl:text>
      <xsl:value-of select="vendor"/>
      <xsl:text>&#10;unit:шт&#10;--- begin ---&#10;</xsl:text>
      <xsl:value-of select="description"/>
      <xsl:text>&#10;--- end ---&#10;##endgoods&#10;</xsl:text>
    </xsl:for-each>
  </xsl:template>

  <xsl:template match="category">
    <xsl:if test="@parentId">
      <xsl:apply-templates select="key('category', @parentId)"/>
      <xsl:text> \ </xsl:text>
    </xsl:if>
    <xsl:value-of select="."/>
  </xsl:template>

  <xsl:template name="shown-name">
    <xsl:param name="part"/>
    <xsl:param name="rest"/>
    <xsl:choose>
      <xsl:when test="contains($rest, $part)">
        <xsl:value-of select="substring($rest, 2)"/>
      </xsl:when>
      <xsl:otherwise>
        <xsl:value-of select="concat($part, $rest)"/>
      </xsl:otherwise>
    </xsl:choose>
  </xsl:template>
</xsl:stylesheet>
